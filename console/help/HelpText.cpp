#include "help/HelpText.hpp"

#include "text/Paragraph.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;
using orbis::MemberAccess;

std::string lastPart(std::string const& name)
{
    return name.substr(name.rfind('.') + 1);
}

bool isShown(MethodRecord const& method)
{
    return method.isVisible && method.access == MemberAccess::Public;
}

bool isShown(PropertyRecord const& property)
{
    return property.isVisible &&
           (property.getAccess == MemberAccess::Public || property.setAccess == MemberAccess::Public);
}

std::string unbroken(std::string text)
{
    std::ranges::replace(text, ' ', nonBreakingSpace);
    return text;
}

std::string entry(std::string const& line, std::string const& description)
{
    return paragraph(line, 2, 8) + paragraph(description, 6, 6);
}

/// "getSum(a: int32 scalar, b: int32 scalar) -> int32 scalar": without the object that a method is called on.
std::string signatureText(MethodRecord const& method)
{
    bool const hasObject = method.kind == Kind::Method && !method.inputs.empty();
    std::string text = lastPart(method.name) + '(';
    for (std::size_t i = hasObject ? 1 : 0; i < method.inputs.size(); ++i) {
        text += text.ends_with('(') ? "" : ", ";
        text += method.inputs[i].name + unbroken(": " + method.inputs[i].dataType);
    }
    text += ')';
    if (method.kind != Kind::Constructor && !method.outputs.empty())
        text += " -> " + unbroken(method.outputs.front().dataType);
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

/// The methods of one kind under a title; empty when there are none.
std::string methodSection(ClassRecord const& cls, char const* title, Kind kind)
{
    std::string text;
    for (MethodRecord const& method : cls.methods)
        if (method.kind == kind && isShown(method))
            text += entry(signatureText(method), method.description);
    return text.empty() ? text : title + ("\n" + text);
}

std::string nameSection(char const* title, std::vector<std::string> const& names)
{
    std::string text;
    for (std::string const& name : names)
        text += paragraph(name, 2, 2);
    return text.empty() ? text : title + ("\n" + text);
}

std::string enumeratorLine(EnumeratorRecord const& enumerator)
{
    return enumerator.name + " = " + std::to_string(enumerator.value);
}

/// In the order of description.
std::string enumeratorSection(ClassRecord const& cls)
{
    std::string text;
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        text += paragraph(enumeratorLine(enumerator), 2, 8);
    return text.empty() ? text : "Enumerators:\n" + text;
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

std::string methodsText(ClassRecord const& cls)
{
    return methodSection(cls, "Constructors:", Kind::Constructor) + methodSection(cls, "Methods:", Kind::Method) +
           methodSection(cls, "Static methods:", Kind::StaticMethod);
}

std::string propertiesText(ClassRecord const& cls)
{
    std::string text;
    for (PropertyRecord const& property : cls.properties)
        if (isShown(property))
            text += entry(propertyLine(property), property.description);
    return text.empty() ? text : "Properties:\n" + text;
}

std::string functionsText(PackageRecord const& package)
{
    std::string text;
    for (MethodRecord const& function : package.functions)
        if (isShown(function))
            text += entry(signatureText(function), function.description);
    return text.empty() ? text : "Functions:\n" + text;
}

std::string helpText(ClassRecord const& cls)
{
    return paragraph(cls.name + ": " + traits(cls), 0, 2) + paragraph(cls.description, 2, 2) + enumeratorSection(cls) +
           methodsText(cls) + propertiesText(cls);
}

std::string helpText(PackageRecord const& package)
{
    return (package.name.empty() ? std::string() : "package " + package.name + '\n') +
           paragraph(package.description, 2, 2) + nameSection("Packages:", package.packages) +
           nameSection("Classes:", package.classes) + functionsText(package);
}

std::string helpText(ClassRecord const& cls, std::string_view member)
{
    std::string text;
    for (MethodRecord const& method : cls.methods)
        if (method.name == member && method.access == MemberAccess::Public)
            text += entry(signatureText(method), method.description);
    for (PropertyRecord const& property : cls.properties)
        if (property.name == member)
            text += entry(propertyLine(property), property.description);
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        if (enumerator.name == member)
            text += paragraph(enumeratorLine(enumerator), 2, 8);
    return text.empty() ? text : cls.name + '.' + std::string(member) + '\n' + text;
}

std::string helpText(PackageRecord const& package, std::string_view function)
{
    std::string text;
    for (MethodRecord const& overload : package.functions)
        if (overload.name == function && overload.access == MemberAccess::Public)
            text += entry(signatureText(overload), overload.description);
    std::string const owner = package.name.empty() ? std::string() : package.name + '.';
    return text.empty() ? text : owner + std::string(function) + '\n' + text;
}

} // namespace velmara::console
