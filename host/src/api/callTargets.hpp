#pragma once

#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"

#include "velmara/MemberName.hpp"

#include <string_view>

namespace velmara {

/// A class without a package. Throws "VELMARA:class:unknown" when there is none.
Class& requireGlobalClass(Machine& machine, std::string_view fullName);

/// The class of that full name, described. Throws "VELMARA:class:unknown" when there is none.
[[gnu::always_inline]] inline Class& requireClass(Machine& machine, std::string_view fullName)
{
    Class* cls = machine.packages().findClass(fullName);
    if (!cls) [[unlikely]]
        cls = &requireGlobalClass(machine, fullName);
    cls->ensureReady();
    return *cls;
}

/// What the name means now: empty when that is not known yet.
inline MemberName::Meaning& currentMeaning(Machine& machine, MemberName& name)
{
    MemberName::Meaning& meaning = name.meaning();
    if (meaning.publication != machine.packages().publicationNumber()) [[unlikely]]
        meaning = {};
    return meaning;
}

inline void remember(Machine& machine, MemberName::Meaning& meaning, Class* cls, void const* member)
{
    meaning = {machine.packages().publicationNumber(), cls, member};
}

/// The class that the name is of, or names, described. Throws "VELMARA:class:unknown" when there is none.
inline Class& requireClass(Machine& machine, MemberName& name)
{
    MemberName::Meaning& meaning = currentMeaning(machine, name);
    if (!meaning.cls) [[unlikely]] {
        Class& cls = requireClass(machine, name.owner());
        remember(machine, meaning, &cls, nullptr);
    }
    return *static_cast<Class*>(meaning.cls);
}

/// The member of the name in a class: what the name remembers if it is of that class, else what `find` finds.
template <class Member, class Find>
[[gnu::always_inline]] inline Member const* memberOf(Class& cls, MemberName& name, Find const& find)
{
    MemberName::Meaning& meaning = currentMeaning(cls.machine(), name);
    if (meaning.cls == &cls && meaning.member) [[likely]]
        return static_cast<Member const*>(meaning.member);
    Member const* const found = find();
    if (found)
        remember(cls.machine(), meaning, &cls, found);
    return found;
}

/// Throws "VELMARA:object:notObject" for what is no object array.
void requireObjectArray(hvArray_tag const* array);

/// The object that an object array means for calls: its first one, or null where that is null or missing. Throws
/// for what is no object array, and for an object that cannot be used.
[[gnu::always_inline]] inline Object* requireObject(Machine& machine, hvArray_tag* array)
{
    if (!array || Array::of(array)->classID() != hvOBJECT_CLASS) [[unlikely]]
        requireObjectArray(array);
    Object* const object = Array::of(array)->size() == 0 ? nullptr : Array::of(array)->objects().front();
    if (object)
        object->requireUsable(machine);
    return object;
}

/// The class that an object array without objects is of.
Class& requireClassOfEmpty(Machine& machine, hvArray_tag* array);

/// The class whose members are meant by an object array: its object's, or its own.
[[gnu::always_inline]] inline Class& requireClassOf(Machine& machine, hvArray_tag* array, Object* object)
{
    return object ? *Class::of(object->classOf()) : requireClassOfEmpty(machine, array);
}

} // namespace velmara
