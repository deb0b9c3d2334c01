#include "help/Apropos.hpp"

#include "arrays/ArrayMethods.hpp"
#include "bindings/MemberRecords.hpp"
#include "help/ConsoleFunctions.hpp"
#include "help/PublishedNames.hpp"
#include "text/Paragraph.hpp"

#include <algorithm>
#include <cctype>

namespace velmara::console {

namespace {

/// Lists what matches.
class Findings {
public:
    explicit Findings(std::string_view wanted) : wanted_(wanted) {}

    void offer(std::string const& name, std::string const& kind, std::string const& text)
    {
        if (name == last_ || !(contains(name) || contains(text)))
            return;
        last_ = name; // its other overloads follow it
        listed_ += paragraph(std::string(name).append(": ").append(kind), 2, 8) + paragraph(text, 6, 6);
    }

    std::string const& listed() const { return listed_; }

private:
    bool contains(std::string_view text) const
    {
        auto const isSame = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
        return !std::ranges::search(text, wanted_, isSame).empty() || wanted_.empty();
    }

    std::string_view wanted_;
    std::string last_;
    std::string listed_;
};

void offerClass(ClassRecord const& cls, Findings& findings)
{
    findings.offer(cls.name, cls.isEnumeration ? "enumeration" : "class", cls.description);
    auto const isOwn = [&](auto const& member) { return isListed(member) && member.definingClass == cls.name; };
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        findings.offer(cls.name + '.' + enumerator.name, "enumerator", {});
    for (MethodRecord const& method : cls.methods)
        if (isOwn(method) && method.kind != MethodRecord::Kind::Constructor)
            findings.offer(cls.name + '.' + method.name, "method", method.description);
    for (PropertyRecord const& property : cls.properties)
        if (isOwn(property))
            findings.offer(cls.name + '.' + property.name, "property", property.description);
}

} // namespace

std::string aproposText(Hvm& hvm, std::string_view text)
{
    Findings findings(text);
    for (ConsoleFunction const& function : consoleFunctions())
        findings.offer(function.signature, "console", function.text);
    for (ArrayMethod const& method : arrayMethods())
        findings.offer(method.signature, "method of arrays", method.text);
    visitPublished(hvm, [&](PublishedName const& published) {
        if (published.kind == NameKind::Class)
            offerClass(hvm.describeClass(published.name), findings);
        else
            findings.offer(published.name, published.kind == NameKind::Package ? "package" : "function",
                           published.description);
    });
    return findings.listed();
}

} // namespace velmara::console
