#include "help/Overview.hpp"

#include "bindings/ProxyBinding.hpp"
#include "help/PublishedNames.hpp"
#include "text/Paragraph.hpp"

namespace velmara::console {

namespace {

/// Names that are listed together, without repetitions that follow one another.
struct NameList {
    std::string text;
    std::string last;
    std::size_t count = 0;

    void add(std::string const& name)
    {
        constexpr std::size_t maxNames = 200;
        if (name == last)
            return;
        last = name;
        if (++count <= maxNames)
            text += (text.empty() ? "" : ", ") + name;
        else if (count == maxNames + 1)
            text += ", ...";
    }
};

struct Contents {
    NameList classes;
    NameList functions;

    std::string entries(std::size_t indent) const
    {
        std::string text;
        if (!classes.text.empty())
            text += paragraph("Classes: " + classes.text, indent, indent + 4);
        if (!functions.text.empty())
            text += paragraph("Functions: " + functions.text, indent, indent + 4);
        return text;
    }
};

} // namespace

std::string overviewText(Hvm& hvm)
{
    Contents top;
    Contents current;
    std::string packages;
    visitPublished(hvm, [&](PublishedName const& published) {
        if (published.kind == NameKind::Package) {
            packages += current.entries(6) + paragraph(published.name, 2, 2);
            current = {};
            return;
        }
        Contents& owner = packages.empty() ? top : current;
        NameList& list = published.kind == NameKind::Class ? owner.classes : owner.functions;
        list.add(unqualifiedName(published.name));
    });
    packages += current.entries(6);
    return top.entries(0) + (packages.empty() ? packages : "Packages:\n" + packages);
}

} // namespace velmara::console
