#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/marshaling/PrimitivePolicy.hpp"
#include "orbis/factory/marshaling/TypedDynamicCastCppManagedPolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedWithInheritancePolicy.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>
#include <type_traits>

namespace orbis::factory {

/// Picks the policy (`Type`) that carries a native type. Specialise it for a type of your own; headers of further
/// policies do so for theirs.
template <class T>
struct MarshalingPolicy;

template <COSScalar T>
struct MarshalingPolicy<T> {
    using Type = PrimitivePolicy;
};

namespace detail {

/// What `HostClass` names; else by what objects are bound as.
template <PublishedClass T>
consteval auto objectPolicy()
{
    if constexpr (requires { typename HostClass<T>::Policy; })
        return std::type_identity<typename HostClass<T>::Policy>{};
    else if constexpr (std::derived_from<T, full::Wrappable>)
        return std::type_identity<TypedDynamicCastCppManagedPolicy<full::Wrappable>>{};
    else if constexpr (requires { typename HostClass<T>::Root; })
        return std::type_identity<VelmaraManagedWithInheritancePolicy>{};
    else
        return std::type_identity<VelmaraManagedNoInheritancePolicy>{};
}

} // namespace detail

template <PublishedClass T>
struct MarshalingPolicy<T*> {
    using Type = typename decltype(detail::objectPolicy<T>())::type;
};

namespace detail {

/// A type without its references and qualifiers, those of a pointed-to class included.
template <class T>
struct NativeType {
    using Type = std::remove_cvref_t<T>;
};

template <class T>
    requires std::is_pointer_v<std::remove_cvref_t<T>> && std::is_class_v<std::remove_pointer_t<std::remove_cvref_t<T>>>
struct NativeType<T> {
    using Type = std::remove_cv_t<std::remove_pointer_t<std::remove_cvref_t<T>>>*;
};

/// What the operations of a marshaler are given for a type: for pointers to objects the class, else the type.
template <class T>
struct MarshaledType {
    using Type = T;
};

template <PublishedClass T>
struct MarshaledType<T*> {
    using Type = T;
};

template <class T>
concept HasPolicy = requires { typename MarshalingPolicy<typename NativeType<T>::Type>::Type; };

/// A reference through which a native function would hand something back cannot cross.
template <class T>
concept IsOutput = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

/// True when values of the type can cross; stops compilation with a sentence when they cannot.
template <class T>
consteval bool isMarshalable()
{
    using Native = typename NativeType<T>::Type;
    constexpr bool isUnpublishedClass =
        std::is_pointer_v<Native> && std::is_class_v<std::remove_pointer_t<Native>> && !HasPolicy<T>;
    static_assert(!isUnpublishedClass, "The class that this pointer points to is not published: specialise "
                                       "orbis::factory::HostClass for it, beside the class.");
    constexpr bool isUnpublishedEnumeration = std::is_enum_v<Native> && !HasPolicy<T>;
    static_assert(!isUnpublishedEnumeration, "This enumeration is not published: specialise "
                                             "orbis::factory::HostEnumeration for it, beside the enumeration.");
    static_assert(HasPolicy<T> || isUnpublishedClass || isUnpublishedEnumeration,
                  "There is no marshaling policy for this native type: include the header of its policy, or "
                  "specialise orbis::factory::MarshalingPolicy for it.");
    static_assert(!IsOutput<T>, "A parameter that is a reference to a non-const value cannot cross: take it by value, "
                                "and return what the function has to hand back.");
    return HasPolicy<T> && !IsOutput<T>;
}

template <class T>
using MarshalerOf = Marshaler<typename MarshalingPolicy<typename NativeType<T>::Type>::Type>;

template <class T>
using MarshaledTypeOf = typename MarshaledType<typename NativeType<T>::Type>::Type;

/// True for a type whose values refer to memory that is not theirs, as its policy says.
template <HasPolicy T>
consteval bool isView()
{
    if constexpr (requires { MarshalerOf<T>::template isView<MarshaledTypeOf<T>>(); })
        return MarshalerOf<T>::template isView<MarshaledTypeOf<T>>();
    else
        return false;
}

/// True for a type whose values cannot be no object, as its policy says.
template <HasPolicy T>
consteval bool refusesNull()
{
    if constexpr (requires { MarshalerOf<T>::template refusesNull<MarshaledTypeOf<T>>(); })
        return MarshalerOf<T>::template refusesNull<MarshaledTypeOf<T>>();
    else
        return false;
}

/// The text of the data type that a signature records for a native type.
template <class T>
char const* dataTypeText()
{
    if constexpr (std::is_void_v<T>)
        return "void";
    else
        return MarshalerOf<T>::template dataTypeText<MarshaledTypeOf<T>>();
}

} // namespace detail
} // namespace orbis::factory
