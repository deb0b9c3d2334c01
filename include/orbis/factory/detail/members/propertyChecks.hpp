#pragma once

#include "orbis/factory/detail/members/releaseRoutine.hpp"
#include "orbis/factory/detail/members/setterTraits.hpp"

#include <string_view>
#include <type_traits>

/// Compile-time checks of property descriptions. Each returns whether one aspect of a description of class `T` is
/// valid, and stops compilation with a sentence otherwise.
namespace orbis::factory::detail {

template <class V>
consteval bool valueCanCross()
{
    static_assert(!std::is_void_v<V>, "A getter gives a value: this one gives nothing.");
    if constexpr (std::is_void_v<V>)
        return false;
    else
        return isMarshalable<std::remove_cvref_t<V>>();
}

template <class T, class G>
consteval bool canRead()
{
    constexpr bool isGetter = GetterTraits<T, G>::isGetter;
    static_assert(isGetter,
                  "A getter is a data member or a member function without parameters, of the class or a public "
                  "base, static data, or a free function or captureless lambda that takes a pointer to "
                  "the class, or nothing.");
    static_assert(isReleasable<T, G>, "A release routine is a member function without parameters, or a free function "
                                      "or captureless lambda that takes a pointer to the class, or nothing.");
    if constexpr (isGetter && isReleasable<T, G>)
        return valueCanCross<typename GetterTraits<T, G>::Result>();
    else
        return false;
}

/// Pointers to data, static or of an object.
template <class S>
concept DataPointer =
    std::is_member_object_pointer_v<S> || (std::is_pointer_v<S> && std::is_object_v<std::remove_pointer_t<S>>);

/// A converted argument is destroyed after the call, so data members are assigned only types that own their memory.
template <class T, class S>
consteval bool canKeep()
{
    if constexpr (DataPointer<S>) {
        constexpr bool ownsMemory = !isView<typename SetterTraits<T, S>::Value>();
        static_assert(ownsMemory, "This data would keep what is gone after the call that writes it: make it own its "
                                  "memory (std::string, std::vector, hvArrayReferenceCountedProxy, an object by "
                                  "value), or give a setter function that copies, or a getter function alone.");
        return ownsMemory;
    } else {
        return true;
    }
}

template <class T, class S>
consteval bool canWrite()
{
    constexpr bool isSetter = SetterTraits<T, S>::isSetter;
    static_assert(isSetter,
                  "A setter is a data member that is not const or a member function that takes one value, of the "
                  "class or a public base, static data that is not const, or a free function or captureless "
                  "lambda that takes the value, after a pointer to the class where it needs the object.");
    if constexpr (isSetter) {
        if constexpr (isMarshalable<typename SetterTraits<T, S>::Value>())
            return canKeep<T, S>();
        else
            return false;
    } else
        return false;
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

template <class T, class G, class S>
consteval bool areOneType()
{
    using Read = typename NativeType<std::remove_cvref_t<typename GetterTraits<T, G>::Result>>::Type;
    using Written = typename NativeType<typename SetterTraits<T, S>::Value>::Type;
    static_assert(haveSameHostType<Read, Written>(),
                  "The setter takes another type than the getter gives: make the two "
                  "types one.");
    return haveSameHostType<Read, Written>();
}

/// True for data that can be read and written through one pointer.
template <class T, class D>
inline constexpr bool isWritableData = DataPointer<D> && GetterTraits<T, D>::isGetter && SetterTraits<T, D>::isSetter;

/// The getter and setter of a static property take no object.
template <class Traits>
consteval bool needsNoObject()
{
    if constexpr (requires { Traits::needsObject; }) {
        static_assert(!Traits::needsObject, "A static property has no object: give static data, or a free function, "
                                            "static member function or captureless lambda that takes no object.");
        return !Traits::needsObject;
    } else {
        return true; // no getter or setter at all: reported elsewhere
    }
}

} // namespace orbis::factory::detail
