#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/detail/objects/sharedNamedObjects.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/marshaling/ReferredObjects.hpp"

#include <memory>
#include <type_traits>

namespace orbis::factory {

/// `std::unique_ptr` to classes that a `Module` names. A result is an object that the host owns. An argument takes the
/// object from its host object, which becomes invalid; one that the host object does not own alone is refused. Empty
/// pointers are null.
class UniquePointerPolicy {};

template <>
class Marshaler<UniquePointerPolicy> : public detail::DataTypeName<Marshaler<UniquePointerPolicy>> {
    template <class Pointer>
    using Class = std::remove_const_t<typename Pointer::element_type>;

public:
    /// Takes the object when the native function is called, because the conversion of a later argument may fail.
    template <class Pointer>
    struct Taking {
        hvArray_tag const* in;

        Pointer value() const
        {
            return Pointer(static_cast<typename Pointer::element_type*>(
                detail::takeNamed(detail::namedClassOf<Class<Pointer>>(), in)));
        }
    };

    template <class Pointer>
    static void toHost(Pointer value, hvArray** out)
    {
        *out =
            detail::announceNamed(detail::namedClassOf<Class<Pointer>>(), value.release(), ResultOwner::Host, nullptr);
    }

    template <class Pointer>
    static Taking<Pointer> fromHost(hvArray_tag const* in)
    {
        return {in};
    }

    template <class Pointer>
    static char const* dataTypeText()
    {
        return detail::className(detail::namedClassOf<Class<Pointer>>());
    }
};

/// `std::shared_ptr` to classes that a `Module` names, which need no base class for it: the host object holds a share,
/// and an object that it owned alone is shared from the first such argument on.
class NamedSharedPointerPolicy {};

template <>
class Marshaler<NamedSharedPointerPolicy> : public detail::DataTypeName<Marshaler<NamedSharedPointerPolicy>> {
    template <class Pointer>
    using Class = std::remove_const_t<typename Pointer::element_type>;

public:
    template <class Pointer>
    static void toHost(Pointer const& value, hvArray** out)
    {
        *out = detail::announceShared(detail::namedClassOf<Class<Pointer>>(), value.get(),
                                      std::const_pointer_cast<Class<Pointer>>(value));
    }

    template <class Pointer>
    static Pointer fromHost(hvArray_tag const* in)
    {
        detail::NamedClass const& named = detail::namedClassOf<Class<Pointer>>();
        std::shared_ptr<void> const share = detail::shareNamed(named, in);
        return Pointer(share, static_cast<typename Pointer::element_type*>(detail::nativeOf(named, in)));
    }

    template <class Pointer>
    static char const* dataTypeText()
    {
        return detail::className(detail::namedClassOf<Class<Pointer>>());
    }
};

namespace detail {

/// Whoever gets an object in an owning pointer deletes it as one of this class.
template <class T>
consteval Refusal owningPointerRefusal()
{
    if constexpr (!requires { sizeof(T); })
        return Refusal::IncompleteClass;
    else if constexpr (std::is_polymorphic_v<T> && !std::is_final_v<T> && !std::has_virtual_destructor_v<T>)
        return Refusal::NotDeletable;
    else
        return Refusal::None;
}

} // namespace detail

template <class T>
    requires NamedType<std::remove_const_t<T>>
struct MarshalingPolicy<std::unique_ptr<T>> {
    static constexpr detail::Refusal refusal = detail::owningPointerRefusal<T>();
    using Type = UniquePointerPolicy;
};

template <class T>
    requires NamedType<std::remove_const_t<T>>
struct MarshalingPolicy<std::shared_ptr<T>> {
    static constexpr detail::Refusal refusal = detail::owningPointerRefusal<T>();
    using Type = NamedSharedPointerPolicy;
};

} // namespace orbis::factory
