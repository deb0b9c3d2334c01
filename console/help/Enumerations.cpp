#include "help/Enumerations.hpp"

#include "bindings/MemberRecords.hpp"
#include "help/TypeNames.hpp"
#include "text/Paragraph.hpp"

namespace velmara::console {

namespace {

void addTypeNames(std::vector<MethodRecord> const& methods, std::string_view name, TypeNames& names)
{
    for (MethodRecord const& method : methods) {
        if (!isListed(method) || (!name.empty() && method.name != name))
            continue;
        for (ParameterRecord const& parameter : parametersOf(method))
            names.merge(namesIn(parameter.dataType));
        for (ParameterRecord const& result : method.outputs)
            names.merge(namesIn(result.dataType));
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
            names.merge(namesIn(property.dataType));
    return text(hvm, names, cls.name);
}

std::string enumerationsText(Hvm& hvm, PackageRecord const& package, std::string_view function)
{
    TypeNames names;
    addTypeNames(package.functions, function, names);
    return text(hvm, names, {});
}

} // namespace velmara::console
