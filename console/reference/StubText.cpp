#include "reference/StubText.hpp"

#include "bindings/MemberRecords.hpp"
#include "reference/CallableStub.hpp"
#include "reference/LuaSource.hpp"
#include "reference/OperatorStub.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;

/// Whether the stub of a superclass has the member.
bool isInherited(std::string const& definingClass, ClassRecord const& cls, StubTypes const& types)
{
    return definingClass != cls.name && types.has(definingClass);
}

std::string fieldName(std::string const& name)
{
    return isLuaName(name) ? name : '[' + luaString(name) + ']';
}

bool isOpen(orbis::MemberAccess access, orbis::ExtendedMemberAccess extended)
{
    return access == orbis::MemberAccess::Public && extended == orbis::ExtendedMemberAccess::None;
}

std::string fieldLine(PropertyRecord const& property, StubTypes const& types)
{
    bool const isRead = isOpen(property.getAccess, property.extendedGetAccess);
    bool const isWritten = isOpen(property.setAccess, property.extendedSetAccess);
    std::string const& type = property.dataType;
    std::string line = "---@field " + fieldName(property.name) + ' ';
    line += isRead && isWritten ? types.both(type) : isRead ? types.given(type) : types.taken(type);
    line += " # " + (type.empty() ? "type not known yet" : annotationText(type)) +
            (!isWritten ? ", read only"
             : !isRead  ? ", write only"
                        : "");
    if (!property.description.empty())
        line += ": " + annotationText(property.description);
    return line + '\n';
}

std::string fieldLines(ClassRecord const& cls, StubTypes const& types)
{
    std::string lines;
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        lines += "---@field " + fieldName(enumerator.name) + ' ' + stubTypeName(cls.name) + " # " +
                 std::to_string(enumerator.value) + '\n';
    for (PropertyRecord const& property : cls.properties)
        if (isListed(property) && !isInherited(property.definingClass, cls, types))
            lines += fieldLine(property, types);
    return lines;
}

std::string classLine(ClassRecord const& cls)
{
    std::string line = "---@class " + stubTypeName(cls.name);
    for (std::size_t i = 0; i < cls.superclasses.size(); ++i)
        line += (i == 0 ? ": " : ", ") + stubTypeName(cls.superclasses[i]);
    return line + '\n';
}

/// What may be passed for an enumerator: itself, its name, its number.
std::string valueAlias(ClassRecord const& cls)
{
    std::string const name = stubTypeName(cls.name);
    std::string line = "---@alias " + name + ".value " + name;
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        line += '|' + luaString(enumerator.name) + '|' + std::to_string(enumerator.value);
    return line + "\n\n";
}

/// The listed ones of `methods` that `isWanted`, one group for each name in the order of the first.
template <class Predicate>
std::vector<CallableForms> groupByName(std::vector<MethodRecord> const& methods, Predicate const& isWanted)
{
    std::vector<CallableForms> groups;
    for (MethodRecord const& method : methods) {
        if (!isListed(method) || !isWanted(method))
            continue;
        auto group = std::ranges::find(groups, method.name, [](CallableForms const& forms) { return forms[0]->name; });
        if (group == groups.end())
            group = groups.emplace(groups.end());
        group->push_back(&method);
    }
    return groups;
}

} // namespace

std::string classStub(ClassRecord const& cls, StubTypes const& types)
{
    CallableStub const callables(types, cls.name);
    auto const constructors =
        groupByName(cls.methods, [](MethodRecord const& method) { return method.kind == Kind::Constructor; });
    std::string text = luaComment(cls.description);
    for (CallableForms const& forms : constructors)
        text += callables.descriptions(forms);
    text += classLine(cls) + fieldLines(cls, types) + operatorLines(cls, types);
    for (CallableForms const& forms : constructors)
        text += callables.overloads(forms, 0);
    text += luaPath(cls.name) + " = {}\n\n";
    if (cls.isEnumeration)
        text += valueAlias(cls);
    for (CallableForms const& forms : groupByName(cls.methods, [&](MethodRecord const& method) {
             return method.kind != Kind::Constructor && !isInherited(method.definingClass, cls, types);
         }))
        text += callables.definition(forms);
    return text;
}

std::string packageStub(PackageRecord const& package, StubTypes const& types)
{
    std::string text = luaComment(package.description) + luaPath(package.name) + " = {}\n\n";
    CallableStub const callables(types, package.name);
    for (CallableForms const& forms : groupByName(package.functions, [](MethodRecord const&) { return true; }))
        text += callables.definition(forms);
    return text;
}

} // namespace velmara::console
