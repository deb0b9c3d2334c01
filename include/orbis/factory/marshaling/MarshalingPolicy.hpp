#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/marshaling/NamedObjectPolicy.hpp"
#include "orbis/factory/marshaling/PrimitivePolicy.hpp"
#include "orbis/factory/marshaling/TypedDynamicCastCppManagedPolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedWithInheritancePolicy.hpp"
#include "orbis/factory/marshaling/missingHeader.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>
#include <type_traits>

namespace orbis::factory {

/// Selects the policy (`Type`) that marshals a native type. Specialise it for types of your own; the headers of
/// optional policies do so for theirs.
template <class T>
struct MarshalingPolicy;

template <COSScalar T>
struct MarshalingPolicy<T> {
    using Type = PrimitivePolicy;
};

namespace detail {

/// The policy that `HostClass` names, else the one that suits the class as which the objects are bound.
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

/// A type without references and qualifiers, including those of a pointed-to class.
template <class T>
struct NativeType {
    using Type = std::remove_cvref_t<T>;
};

template <class T>
    requires std::is_pointer_v<std::remove_cvref_t<T>> && std::is_class_v<std::remove_pointer_t<std::remove_cvref_t<T>>>
struct NativeType<T> {
    using Type = std::remove_cv_t<std::remove_pointer_t<std::remove_cvref_t<T>>>*;
};

/// The template argument of a marshaler's operations: for pointers to objects the class, else the type.
template <class T>
struct MarshaledType {
    using Type = T;
};

template <class T>
    requires PublishedClass<T> || NamedType<T>
struct MarshaledType<T*> {
    using Type = T;
};

/// The policy of a type without references and qualifiers: the selected one, else the one of named classes.
template <class T>
struct PolicyFor {};

template <class T>
    requires requires { typename MarshalingPolicy<T>::Type; }
struct PolicyFor<T> {
    using Type = typename MarshalingPolicy<T>::Type;
};

template <NamedType T>
    requires(!requires { typename MarshalingPolicy<T>::Type; })
struct PolicyFor<T> {
    using Type = NamedObjectPolicy;
};

template <NamedType T>
    requires(!requires { typename MarshalingPolicy<T*>::Type; })
struct PolicyFor<T*> {
    using Type = NamedPointerPolicy;
};

template <class T>
using PolicyOf = typename PolicyFor<typename NativeType<T>::Type>::Type;

template <class T>
concept HasPolicy = requires { typename PolicyOf<T>; };

/// Named classes, and references and pointers to them.
template <class T>
concept IsNamedObject =
    HasPolicy<T> && (std::same_as<PolicyOf<T>, NamedObjectPolicy> || std::same_as<PolicyOf<T>, NamedPointerPolicy>);

/// References to non-const, unless to objects that scripts pass: outputs, which cannot be marshaled.
template <class T>
concept IsOutput = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>> &&
                   !(HasPolicy<T> && std::same_as<PolicyOf<T>, NamedObjectPolicy>);

/// The types of Eigen are no objects without their header.
template <class Native>
consteval bool missesHeader()
{
    if constexpr (!HasPolicy<Native>)
        return lacksHeader<Native>();
    else if constexpr (std::same_as<PolicyOf<Native>, NamedObjectPolicy>)
        return isNamed<Native>("Eigen::") && lacksHeader<Native>();
    else
        return false;
}

/// Returns whether values of the type can be marshaled; stops compilation with a sentence otherwise.
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
    constexpr bool hasNoHeader = missesHeader<Native>();
    static_assert(HasPolicy<T> || isUnpublishedClass || isUnpublishedEnumeration || hasNoHeader,
                  "There is no marshaling policy for this native type: include the header of its policy, or "
                  "specialise orbis::factory::MarshalingPolicy for it.");
    static_assert(!IsOutput<T>, "A parameter that is a reference to a non-const value cannot cross: take it by value, "
                                "and return what the function has to hand back.");
    return HasPolicy<T> && !hasNoHeader && !IsOutput<T>;
}

template <class T>
using MarshalerOf = Marshaler<PolicyOf<T>>;

template <class T>
using MarshaledTypeOf = typename MarshaledType<typename NativeType<T>::Type>::Type;

/// Returns whether values of the type refer to memory that they do not own, according to its policy.
template <HasPolicy T>
consteval bool isView()
{
    if constexpr (requires { MarshalerOf<T>::template isView<MarshaledTypeOf<T>>(); })
        return MarshalerOf<T>::template isView<MarshaledTypeOf<T>>();
    else
        return false;
}

/// Returns whether marshaling rejects null for the type, according to its policy.
template <HasPolicy T>
consteval bool refusesNull()
{
    if constexpr (requires { MarshalerOf<T>::template refusesNull<MarshaledTypeOf<T>>(); })
        return MarshalerOf<T>::template refusesNull<MarshaledTypeOf<T>>();
    else
        return false;
}

/// Returns the name of the host data type that a signature records for a native type.
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
