#pragma once

#include "orbis/factory/detail/members/releaseRoutine.hpp"
#include "orbis/factory/detail/members/setterTraits.hpp"

#include <string_view>
#include <type_traits>

/// Compile-time checks of property descriptions of class `T`. Each returns why a description is refused, or `None`.
namespace orbis::factory::detail {

template <class T, class G>
consteval Refusal getterRefusal()
{
    if constexpr (CallableTraits<G>::kind == CallableKind::OnRvalue)
        return Refusal::OnRvalue;
    else if constexpr (!GetterTraits<T, G>::isGetter)
        return Refusal::NotGetter;
    else if constexpr (!isReleasable<T, G>)
        return Refusal::NotReleaseRoutine;
    else if constexpr (std::is_void_v<typename GetterTraits<T, G>::Result>)
        return Refusal::GivesNothing;
    else
        return storedResultRefusal<typename GetterTraits<T, G>::Reader::Result>();
}

/// Pointers to data, static or of an object.
template <class S>
concept DataPointer =
    std::is_member_object_pointer_v<S> || (std::is_pointer_v<S> && std::is_object_v<std::remove_pointer_t<S>>);

/// A converted argument is destroyed after the call, so data members are assigned only types that own their memory.
template <class T, class S>
consteval Refusal setterRefusal()
{
    if constexpr (CallableTraits<S>::kind == CallableKind::OnRvalue) {
        return Refusal::OnRvalue;
    } else if constexpr (!SetterTraits<T, S>::isSetter) {
        return Refusal::NotSetter;
    } else {
        using Value = typename SetterTraits<T, S>::Value;
        if constexpr (argumentRefusal<Value>() == Refusal::None && DataPointer<S>)
            return isView<Value>() ? Refusal::KeepsView : Refusal::None;
        else
            return argumentRefusal<Value>();
    }
}

/// Returns whether two types have the same host data type. Its name is a constant expression for most types other than
/// scalars; of the rest, only identical types count as equal.
template <class A, class B>
consteval bool haveSameHostType()
{
    constexpr auto text = []<class V>(std::type_identity<V>) {
        return std::string_view(MarshalerOf<V>::template dataTypeText<MarshaledTypeOf<V>>());
    };
    if constexpr (std::is_same_v<A, B>)
        return true;
    else if constexpr (requires {
                           typename std::bool_constant<(text(std::type_identity<A>()) ==
                                                        text(std::type_identity<B>()))>;
                       })
        return text(std::type_identity<A>()) == text(std::type_identity<B>());
    else
        return false;
}

/// True for data that can be read and written through one pointer.
template <class T, class D>
inline constexpr bool isWritableData = DataPointer<D> && GetterTraits<T, D>::isGetter && SetterTraits<T, D>::isSetter;

/// For a property that is read through `G`, and written if that is data.
template <class T, class G>
consteval Refusal propertyRefusal()
{
    if constexpr (isWritableData<T, G>)
        return firstRefusal(getterRefusal<T, G>(), setterRefusal<T, G>());
    else
        return getterRefusal<T, G>();
}

/// For a property that is read and written.
template <class T, class G, class S>
consteval Refusal propertyRefusal()
{
    if constexpr (firstRefusal(getterRefusal<T, G>(), setterRefusal<T, S>()) != Refusal::None) {
        return firstRefusal(getterRefusal<T, G>(), setterRefusal<T, S>());
    } else {
        using Read = typename NativeType<std::remove_cvref_t<typename GetterTraits<T, G>::Result>>::Type;
        using Written = typename NativeType<typename SetterTraits<T, S>::Value>::Type;
        using Class = std::remove_pointer_t<Read>;
        constexpr bool areOneClass = std::is_class_v<Class> && std::is_same_v<Class, std::remove_pointer_t<Written>>;
        return areOneClass || haveSameHostType<Read, Written>() ? Refusal::None : Refusal::OtherSetterType;
    }
}

/// The getter and setter of a static property take no object. What is no getter or setter at all is refused elsewhere.
template <class... Traits>
consteval Refusal staticRefusal()
{
    auto const needsObject = []<class Access>(std::type_identity<Access>) {
        if constexpr (requires { Access::needsObject; })
            return Access::needsObject;
        else
            return false;
    };
    return (needsObject(std::type_identity<Traits>()) || ...) ? Refusal::NeedsObject : Refusal::None;
}

} // namespace orbis::factory::detail
