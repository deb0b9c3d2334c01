#pragma once

#include "orbis/factory/base/refusals.hpp"
#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/marshaling/HandleObjectPolicy.hpp"
#include "orbis/factory/marshaling/NamedObjectPolicy.hpp"
#include "orbis/factory/marshaling/PrimitivePolicy.hpp"
#include "orbis/factory/marshaling/TypedDynamicCastCppManagedPolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedWithInheritancePolicy.hpp"
#include "orbis/factory/marshaling/missingHeader.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>
#include <type_traits>
#include <utility>

namespace orbis::factory {

/// Selects the policy (`Type`) that marshals a native type. Specialise it for types of your own; the headers of
/// optional policies do so for theirs. With `static constexpr bool namesInput = true`, the errors of `fromHost` get the
/// name of the input.
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

template <PublishedClass T>
    requires(!ValueClass<T>)
struct MarshalingPolicy<T> {
    using Type = HandleObjectPolicy;
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

/// Classes whose objects are passed as the ones that scripts pass, and references to them.
template <class T>
concept PassedAsObject =
    HasPolicy<T> && (std::same_as<PolicyOf<T>, NamedObjectPolicy> || std::same_as<PolicyOf<T>, HandleObjectPolicy>);

/// Classes with a `HostClass` whose objects are bound, and references to them.
template <class T>
concept IsHandleObject = HasPolicy<T> && std::same_as<PolicyOf<T>, HandleObjectPolicy>;

/// References to non-const, unless to objects that scripts pass: outputs, which cannot be marshaled.
template <class T>
concept IsOutput = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>> && !PassedAsObject<T>;

template <class T>
using MarshalerOf = Marshaler<PolicyOf<T>>;

template <class T>
using MarshaledTypeOf = typename MarshaledType<typename NativeType<T>::Type>::Type;

template <class T>
concept HasCompleteMarshaler = requires { sizeof(MarshalerOf<T>); };

template <class T>
concept HasDataType = requires { MarshalerOf<T>::template dataTypeText<MarshaledTypeOf<T>>(); };

template <class T>
concept ConvertsFromHost = requires(COSValue const& in) {
    MarshalerOf<T>::template fromHost<MarshaledTypeOf<T>>(in);
} || requires(hvArray* in) { MarshalerOf<T>::template fromHost<MarshaledTypeOf<T>>(in); };

template <class R>
concept ConvertsToHost = requires(COSValue* out) {
    MarshalerOf<R>::template toHost<MarshaledTypeOf<R>>(std::declval<R>(), out);
} || requires(hvArray** out) { MarshalerOf<R>::template toHost<MarshaledTypeOf<R>>(std::declval<R>(), out); };

/// Why values of a type without a policy cannot be marshaled.
template <class Native>
consteval Refusal refusalWithoutPolicy()
{
    if constexpr (std::is_pointer_v<Native> && std::is_class_v<std::remove_pointer_t<Native>>)
        return Refusal::UnpublishedClass;
    else if constexpr (std::is_enum_v<Native>)
        return Refusal::UnpublishedEnumeration;
    else if constexpr (missingHeader<Native>() != Refusal::None)
        return missingHeader<Native>();
    else
        return Refusal::NoPolicy;
}

/// Pointers to classes of a hierarchy whose topmost class has no virtual function.
template <class T>
inline constexpr bool isUnpolymorphicHandle = false;

template <PublishedClass T>
    requires requires { typename HostClass<T>::Root; }
inline constexpr bool isUnpolymorphicHandle<T*> =
    !std::is_polymorphic_v<RootClass<T>> && std::same_as<PolicyOf<T*>, VelmaraManagedWithInheritancePolicy>;

/// Returns why values of the type cannot be marshaled, or `None`. A policy of a compound type says so with
/// `MarshalingPolicy<T>::refusal`.
template <class T>
consteval Refusal marshalingRefusal()
{
    using Native = typename NativeType<T>::Type;
    if constexpr (!HasPolicy<T>)
        return refusalWithoutPolicy<Native>();
    else if constexpr (IsOutput<T>)
        return Refusal::Output;
    else if constexpr (requires { MarshalingPolicy<Native>::refusal; })
        return MarshalingPolicy<Native>::refusal;
    else if constexpr (IsNamedObject<T> && !requires { sizeof(std::remove_pointer_t<Native>); })
        return Refusal::IncompleteClass;
    else if constexpr (std::same_as<PolicyOf<T>, NamedObjectPolicy> && isNamed<Native>("Eigen::"))
        return missingHeader<Native>(); // they are no objects
    else if constexpr (isUnpolymorphicHandle<Native>)
        return Refusal::NotPolymorphic;
    else if constexpr (!HasCompleteMarshaler<T>)
        return Refusal::NoMarshaler;
    else
        return HasDataType<T> ? Refusal::None : Refusal::NoDataType;
}

/// The same for a parameter, or what is written to a property.
template <class T>
consteval Refusal argumentRefusal()
{
    using Native = typename NativeType<T>::Type;
    if constexpr (marshalingRefusal<T>() != Refusal::None)
        return marshalingRefusal<T>();
    else if constexpr (requires { MarshalingPolicy<Native>::argumentRefusal; })
        return MarshalingPolicy<Native>::argumentRefusal;
    else
        return ConvertsFromHost<T> ? Refusal::None : Refusal::NoConversionFromHost;
}

/// The same for what a compound type holds.
template <class E>
consteval Refusal elementRefusal()
{
    if constexpr (IsHandleObject<E>)
        return Refusal::HandleByValue;
    else
        return marshalingRefusal<E>();
}

/// The same for a result.
template <class R>
consteval Refusal resultRefusal()
{
    using Native = std::remove_cv_t<std::remove_pointer_t<std::remove_cvref_t<R>>>;
    if constexpr (std::is_void_v<R>)
        return Refusal::None;
    else if constexpr (IsHandleObject<R>)
        return std::is_reference_v<R> ? Refusal::None : Refusal::HandleByValue;
    else if constexpr (ValueClass<Native> && !std::is_copy_assignable_v<Native>)
        return Refusal::NotAssignable;
    else if constexpr (marshalingRefusal<std::remove_cvref_t<R>>() != Refusal::None)
        return marshalingRefusal<std::remove_cvref_t<R>>();
    else
        return PassedAsObject<R> || ConvertsToHost<R> ? Refusal::None : Refusal::NoConversionToHost;
}

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

/// Types whose conversion may fail, in a way that the host does not foresee: errors get the name of the input.
template <class T>
concept NamesInput = requires { requires MarshalingPolicy<typename NativeType<T>::Type>::namesInput; };

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
