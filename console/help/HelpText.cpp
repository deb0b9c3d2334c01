#include "help/HelpText.hpp"

#include "bindings/MemberRecords.hpp"
#include "bindings/ProxyBinding.hpp"
#include "text/Paragraph.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;
using orbis::MemberAccess;

std::string unbroken(std::string text)
{
    std::ranges::replace(text, ' ', nonBreakingSpace);
    return text;
}

std::string propertyLine(PropertyRecord const& property)
{
    std::string line = property.name + ": " + (property.dataType.empty() ? "type not known yet" : property.dataType);
    if (property.isStatic)
        line += ", static";
    if (property.setAccess != MemberAccess::Public)
        line += ", read only";
    else if (property.getAccess != MemberAccess::Public)
        line += ", write only";
    return line;
}

std::string entry(std::string const& line, std::string const& description)
{
    return paragraph(line, 2, 8) + paragraph(description, 6, 6);
}

std::string entry(MethodRecord const& method)
{
    return entry(signatureText(method), method.description);
}

std::string entry(PropertyRecord const& property)
{
    return entry(propertyLine(property), property.description);
}

std::string entry(EnumeratorRecord const& enumerator)
{
    return entry(enumerator.name + " = " + std::to_string(enumerator.value), "");
}

std::string entry(ErrorRecord const& error)
{
    std::string line = error.identifier;
    for (std::string const& field : error.fields)
        line += (&field == error.fields.data() ? ", with " : ", ") + field;
    return entry(line, "");
}

std::string entry(std::string const& name)
{
    return paragraph(name, 2, 2);
}

template <class Record, class Predicate>
std::string entries(std::vector<Record> const& records, Predicate const& isListed)
{
    std::string text;
    for (Record const& record : records)
        if (isListed(record))
            text += entry(record);
    return text;
}

constexpr auto anything = [](auto const&) { return true; };
constexpr auto shown = [](auto const& record) { return isListed(record); };

/// Entries under a title; empty when there are none.
std::string section(std::string const& title, std::string const& entries)
{
    return entries.empty() ? entries : title + '\n' + entries;
}

/// The shown methods of one kind.
std::string methodEntries(ClassRecord const& cls, Kind kind)
{
    return entries(cls.methods, [&](MethodRecord const& method) { return method.kind == kind && isListed(method); });
}

std::string traits(ClassRecord const& cls)
{
    std::string text = cls.isEnumeration ? "enumeration" : cls.isHandle ? "handle class" : "value class";
    if (cls.isAbstract)
        text += ", abstract";
    for (std::size_t i = 0; i < cls.superclasses.size(); ++i)
        text += (i == 0 ? ", a kind of " : " and ") + cls.superclasses[i];
    return text;
}

} // namespace

std::string signatureText(MethodRecord const& method)
{
    std::string text = unqualifiedName(method.name) + '(';
    for (ParameterRecord const& parameter : parametersOf(method)) {
        text += text.ends_with('(') ? "" : ", ";
        text += parameter.name + unbroken(": " + parameter.dataType);
    }
    text += ')';
    if (method.kind != Kind::Constructor && !method.outputs.empty())
        text += " -> " + unbroken(method.outputs.front().dataType);
    return text;
}

std::string methodsText(ClassRecord const& cls)
{
    return section("Constructors:", methodEntries(cls, Kind::Constructor)) +
           section("Methods:", methodEntries(cls, Kind::Method)) +
           section("Static methods:", methodEntries(cls, Kind::StaticMethod));
}

std::string propertiesText(ClassRecord const& cls)
{
    return section("Properties:", entries(cls.properties, shown));
}

std::string functionsText(PackageRecord const& package)
{
    return section("Functions:", entries(package.functions, shown));
}

std::string helpText(ClassRecord const& cls)
{
    return paragraph(cls.name + ": " + traits(cls), 0, 2) + paragraph(cls.description, 2, 2) +
           section("Enumerators:", entries(cls.enumerators, anything)) + methodsText(cls) + propertiesText(cls);
}

std::string helpText(PackageRecord const& package)
{
    return (package.name.empty() ? std::string() : "package " + package.name + '\n') +
           paragraph(package.description, 2, 2) + section("Packages:", entries(package.packages, anything)) +
           section("Classes:", entries(package.classes, anything)) + functionsText(package) +
           section("Errors:", entries(package.errors, anything));
}

std::string helpText(ClassRecord const& cls, std::string_view member)
{
    auto const isNamed = [&](auto const& record) { return record.name == member; };
    auto const isPublic = [&](MethodRecord const& method) {
        return isNamed(method) && method.access == MemberAccess::Public;
    };
    return section(cls.name + '.' + std::string(member), entries(cls.methods, isPublic) +
                                                             entries(cls.properties, isNamed) +
                                                             entries(cls.enumerators, isNamed));
}

std::string helpText(PackageRecord const& package, std::string_view function)
{
    auto const isPublic = [&](MethodRecord const& overload) {
        return overload.name == function && overload.access == MemberAccess::Public;
    };
    std::string const owner = package.name.empty() ? std::string() : package.name + '.';
    return section(owner + std::string(function), entries(package.functions, isPublic));
}

} // namespace velmara::console
