#include "reference/PageLinks.hpp"

#include "reference/FileNames.hpp"

namespace velmara::console {

namespace {

bool isPlain(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '.';
}

} // namespace

std::string addressOf(std::string_view text)
{
    constexpr char const* digits = "0123456789abcdef";
    std::string address;
    for (char const c : text) {
        auto const byte = static_cast<unsigned char>(c);
        if (isPlain(c))
            address += c;
        else
            address.append(1, '-').append(1, digits[byte / 16]).append(1, digits[byte % 16]);
    }
    return address;
}

std::string errorPlace(ErrorRecord const& error)
{
    return "error-" + addressOf(error.identifier);
}

PageLinks::PageLinks(std::span<PublishedRecords const> roots)
{
    FileNames files;
    for (PublishedRecords const& root : roots) {
        for (PackageRecord const& package : root.packages) {
            pages_.emplace(package.name, files.add("package-" + addressOf(package.name)));
            packages_.emplace(package.name, &package);
        }
        for (ClassRecord const& cls : root.classes) {
            pages_.emplace(cls.name, files.add("class-" + addressOf(cls.name)));
            classes_.emplace(cls.name, &cls);
            for (std::string const& superclass : cls.superclasses)
                subclasses_[superclass].push_back(cls.name);
        }
    }
}

std::string PageLinks::pageOf(std::string_view name) const
{
    auto const found = pages_.find(name);
    return found == pages_.end() ? std::string() : found->second;
}

std::span<std::string const> PageLinks::subclasses(std::string const& className) const
{
    auto const found = subclasses_.find(className);
    return found == subclasses_.end() ? std::span<std::string const>() : found->second;
}

std::string PageLinks::shortName(std::string const& name)
{
    return name.substr(name.rfind('.') + 1);
}

PagePiece PageLinks::to(std::string const& name) const
{
    return {name, pageOf(name), {}};
}

PageLine PageLinks::toType(std::string const& dataType) const
{
    std::string cls = dataType;
    for (std::string_view const suffix : {" or empty", " vector"})
        if (cls.ends_with(suffix))
            cls.resize(cls.size() - suffix.size());
    return {to(cls), {dataType.substr(cls.size()), {}, {}}};
}

PageLine PageLinks::toErrors(std::string const& className) const
{
    PageLine line;
    for (std::size_t dot = className.find('.'); dot != className.npos; dot = className.find('.', dot + 1)) {
        auto const package = packages_.find(className.substr(0, dot));
        if (package == packages_.end())
            continue;
        for (ErrorRecord const& error : package->second->errors) {
            line.push_back({line.empty() ? "" : ", ", {}, {}});
            line.push_back({error.identifier, pageOf(package->first), errorPlace(error)});
        }
    }
    return line;
}

PageLine PageLinks::trailTo(std::string const& name) const
{
    PageLine trail{{"Reference", "index", {}}};
    for (std::size_t dot = name.find('.'); dot != name.npos; dot = name.find('.', dot + 1))
        if (std::string const outer = name.substr(0, dot); knows(outer))
            trail.push_back({shortName(outer), pageOf(outer), {}});
    return trail;
}

} // namespace velmara::console
