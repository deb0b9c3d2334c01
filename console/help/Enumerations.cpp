#include "help/Enumerations.hpp"

#include "bindings/MemberRecords.hpp"
#include "text/Paragraph.hpp"

#include <algorithm>
#include <cctype>
#include <set>

namespace velmara::console {

namespace {

using TypeNames = std::set<std::string>;

/// The names in a data type: "palette.Color" in "palette.Color vector".
void addTypeNames(std::string const& dataType, TypeNames& names)
{
    auto const isPart = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_' || c == '.'; };
    for (auto begin = dataType.begin(); begin != dataType.end();) {
        begin = std::find_if(begin, dataType.end(), isPart);
        auto const end = std::find_if_not(begin, dataType.end(), isPart);
        if (begin != end)
            names.emplace(begin, end);
        begin = end;
    }
}

void addTypeNames(std::vector<MethodRecord> const& methods, std::string_view name, TypeNames& names)
{
    for (MethodRecord const& method : methods) {
        if (!isListed(method) || (!name.empty() && method.name != name))
            continue;
        for (ParameterRecord const& parameter : parametersOf(method))
            addTypeNames(parameter.dataType, names);
        for (ParameterRecord const& result : method.outputs)
            addTypeNames(result.dataType, names);
    }
}

std::string text(Hvm& hvm, TypeNames const& names, std::string const& subject)
{
    std::string entries;
    for (std::string const& name : names) {
        if (name == subject || hvm.lookUp(name) != NameKind::Class)
            continue;
        ClassRecord const cls = hvm.describeClass(name);
        std::string enumerators;
        for (EnumeratorRecord const& enumerator : cls.enumerators)
            enumerators += (enumerators.empty() ? "" : ", ") + enumerator.name;
        if (cls.isEnumeration)
            entries += paragraph(std::string(name).append(": ").append(enumerators), 2, 8);
    }
    return entries.empty() ? entries : "Enumerations:\n" + entries;
}

} // namespace

std::string enumerationsText(Hvm& hvm, ClassRecord const& cls, std::string_view member)
{
    TypeNames names;
    addTypeNames(cls.methods, member, names);
    for (PropertyRecord const& property : cls.properties)
        if (isListed(property) && (member.empty() || property.name == member))
            addTypeNames(property.dataType, names);
    return text(hvm, names, cls.name);
}

std::string enumerationsText(Hvm& hvm, PackageRecord const& package, std::string_view function)
{
    TypeNames names;
    addTypeNames(package.functions, function, names);
    return text(hvm, names, {});
}

} // namespace velmara::console
