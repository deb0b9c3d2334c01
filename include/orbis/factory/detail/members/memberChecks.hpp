#pragma once

#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"
#include "orbis/factory/detail/members/defaultedOverloads.hpp"
#include "orbis/factory/marshaling/ObjectTransfer.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include <concepts>
#include <type_traits>

/// Compile-time checks of described functions. Each returns why a description is refused, or `None`.
namespace orbis::factory::detail {

/// Returns why a parameter cannot be published, or `None`.
template <class A>
consteval Refusal parameterRefusal()
{
    constexpr bool hasOwner = ParameterType<A>::isKept || ParameterType<A>::isTaken;
    if constexpr (hasOwner && (!IsNamedObject<NativeParameter<A>> || std::is_class_v<NativeParameter<A>>))
        return Refusal::OwnerOfNoArgument;
    else
        return argumentRefusal<NativeParameter<A>>();
}

/// Returns why a function of this signature cannot be published, or `None`.
template <class Result, class... A>
consteval Refusal signatureRefusal(TypeList<A...>)
{
    return firstRefusal(sizeof...(A) <= maximumInputs ? Refusal::None : Refusal::TooManyParameters,
                        parameterRefusal<A>()..., storedResultRefusal<Result>());
}

template <class... A>
consteval Refusal keepingRefusal(TypeList<A...>)
{
    return (ParameterType<A>::isKept || ...) ? Refusal::KeptWithoutObject : Refusal::None;
}

/// For a method of class `T`.
template <class T, class F>
consteval Refusal methodRefusal()
{
    using Traits = CallableTraits<F>;
    if constexpr (Traits::kind == CallableKind::None) {
        return Refusal::NotCallable;
    } else if constexpr (Traits::kind == CallableKind::OnRvalue) {
        return Refusal::OnRvalue;
    } else if constexpr (Traits::kind == CallableKind::Member) {
        return std::derived_from<T, typename Traits::Class>
                   ? signatureRefusal<typename Traits::Result>(typename Traits::Parameters{})
                   : Refusal::OtherClass;
    } else {
        return Traits::template takesObject<T>
                   ? signatureRefusal<typename Traits::Result>(typename Traits::Parameters{})
                   : Refusal::ObjectNotFirst;
    }
}

/// For a function without an object. `Other` refuses what is no function.
template <class F, Refusal OfMember, Refusal Other>
consteval Refusal functionRefusal()
{
    using Traits = CallableTraits<F>;
    if constexpr (Traits::kind == CallableKind::Free)
        return firstRefusal(signatureRefusal<typename Traits::Result>(typename Traits::Parameters{}),
                            keepingRefusal(typename Traits::Parameters{}));
    else
        return Traits::kind == CallableKind::None ? Other : OfMember;
}

template <class F>
consteval Refusal staticMethodRefusal()
{
    return functionRefusal<F, Refusal::StaticMember, Refusal::NotCallable>();
}

template <class F>
consteval Refusal packageFunctionRefusal()
{
    return functionRefusal<F, Refusal::NotPackageFunction, Refusal::NotPackageFunction>();
}

template <class T, class... A>
consteval Refusal constructorRefusal()
{
    if constexpr (!std::is_constructible_v<T, NativeParameter<A>...>)
        return Refusal::NoConstructor;
    else
        return signatureRefusal<void>(TypeList<A...>{});
}

/// For the default values `D` of the last parameters of a function that passes the other checks; the first `Objects`
/// are the object that it is called on.
template <class F, std::size_t Objects, class... D>
consteval Refusal defaultsRefusalOf()
{
    using Traits = CallableTraits<F>;
    if constexpr (requires { typename Traits::Parameters; } && Traits::arity >= Objects)
        return defaultsRefusal<Traits::arity - Objects, D...>(typename Traits::Parameters{});
    else
        return Refusal::None;
}

} // namespace orbis::factory::detail
