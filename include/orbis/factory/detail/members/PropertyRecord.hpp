#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/descriptors/ReleaseRoutine.hpp"
#include "orbis/factory/detail/members/KeptObject.hpp"
#include "orbis/factory/detail/members/TypeText.hpp"

namespace orbis {
template <class T>
class Enumeration;
}

namespace orbis::factory {

namespace detail {

/// What all getters of one type have in common; static. The routines take the getter as its record stores it, and do
/// what `impl::Getter` says.
struct GetterForm {
    COSValue (*getValue)(impl::Callable const& getter, COSInterface* object);

    /// Null when values of the type cannot refer to host objects.
    void (*getInterfaces)(impl::Callable const& getter, COSInterface* object, Enumeration<COSInterface*>& found);
    TypeText type;
    impl::ReleaseRoutine release; ///< null for most
    bool needsObject;             ///< to read or release
};

/// The same for setters and `impl::Setter`.
struct SetterForm {
    void (*setValue)(impl::Callable const& setter, COSInterface* object, COSValue value);
    TypeText type;
    bool needsObject;
};

} // namespace detail

/// The description of one property, from which its descriptor is created; needs no host. All texts are literals.
struct PropertyRecord {
    char const* name;
    PropertyAttributes attributes;
    detail::GetterForm const* getterForm = nullptr; ///< null for a write-only property
    detail::SetterForm const* setterForm = nullptr; ///< null for a read-only property
    impl::Callable getter = {};
    impl::Callable setter = {};
    char const* text = "";
    detail::KeptObject keptGetter = {}; ///< owns what `getter` points to, unless that is a function or data
    detail::KeptObject keptSetter = {}; ///< likewise

    bool needsObject() const
    {
        return (getterForm && getterForm->needsObject) || (setterForm && setterForm->needsObject);
    }
};

} // namespace orbis::factory
