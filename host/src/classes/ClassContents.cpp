#include "classes/ClassContents.hpp"

#include "classes/Class.hpp"
#include "errors/hostError.hpp"

#include <algorithm>

namespace velmara {

namespace {

[[noreturn]] void throwSealed(Class const& cls, Name member, ObjectClass const& definer)
{
    throwHostError("VELMARA:class", "sealedMember", {cls.name()->string(), member->string(), definer.name()->string()});
}

/// True when a method that is in the group already hides `inherited`.
bool isHidden(Method const& inherited, MethodGroup const& group, Class const& cls)
{
    bool const hidden = std::ranges::any_of(group.methods, [&](Method const* method) {
        return method->definingClass != inherited.definingClass &&
               (method->overridesAllSignatures || method->hasSameInputs(inherited));
    });
    if (hidden && inherited.isSealed)
        throwSealed(cls, inherited.name, *inherited.definingClass);
    return hidden;
}

void addMethods(MemberTables& tables, Class const& cls, Class const& definer)
{
    for (auto const& method : definer.contents().methods) {
        if (method->isConstructor)
            continue;
        MethodGroup& group = tables.methodGroups[method->name];
        if (!isHidden(*method, group, cls))
            group.add(*method);
    }
}

void addProperties(MemberTables& tables, Class const& cls, Class const& definer)
{
    for (auto const& property : definer.contents().properties) {
        Property const*& entry = tables.propertiesByName[property->name];
        if (entry && property->traits.isSealed)
            throwSealed(cls, property->name, definer);
        if (!entry)
            entry = property.get();
    }
}

} // namespace

std::unique_ptr<MemberTables> buildMemberTables(std::vector<ObjectClass*> const& linearization)
{
    auto tables = std::make_unique<MemberTables>();
    Class const& cls = *Class::of(linearization.front());
    for (auto const& method : cls.contents().methods)
        if (method->isConstructor)
            tables->constructors.add(*method);
    for (ObjectClass* const definer : linearization) {
        addMethods(*tables, cls, *Class::of(definer));
        addProperties(*tables, cls, *Class::of(definer));
    }
    return tables;
}

} // namespace velmara
