#pragma once

#include "orbis/factory/descriptors/AdaptedClassSetter.hpp"
#include "orbis/factory/descriptors/ClassSetter.hpp"
#include "orbis/factory/descriptors/ClasslessSetter.hpp"
#include "orbis/factory/descriptors/DataSetter.hpp"
#include "orbis/factory/detail/members/getterTraits.hpp"

/// What can be published as a setter of class `T`, and the setter that writes through it.
namespace orbis::factory::detail {

/// `isSetter`; if that is true, also `Value`: the type that is written; `Pointer`: the type as which the callable is
/// stored; `Setter`: the class that writes through it.
template <class T, class S>
struct SetterTraits {
    static constexpr bool isSetter = false;
};

template <class A, class P, class Writer>
struct SetterOf {
    static constexpr bool isSetter = true;
    static constexpr bool needsObject = Writer::needsObject;
    using Value = A;
    using Pointer = P;
    using Setter = Writer;
};

/// The value type of a setter function with the parameters `L`: the only one, or the one after the object.
template <class L>
struct ValueAmong;

template <class A>
struct ValueAmong<TypeList<A>> {
    using Type = A;
};

template <class Object, class A>
struct ValueAmong<TypeList<Object, A>> {
    using Type = A;
};

template <class S>
using SetterValue = typename ValueAmong<typename CallableTraits<S>::Parameters>::Type;

template <class T, class S>
using SetterOfMethod =
    SetterOf<SetterValue<S>, typename CallableTraits<S>::template PointerIn<T>,
             impl::ClassSetter<SetterValue<S>, T, typename CallableTraits<S>::template PointerIn<T>>>;

template <class T, MethodOf<T> S>
    requires(CallableTraits<S>::arity == 1)
struct SetterTraits<T, S> : SetterOfMethod<T, S> {};

template <class T, class M, class C>
    requires std::is_object_v<M> && (!std::is_const_v<M>) && std::derived_from<T, C>
struct SetterTraits<T, M C::*>
    : SetterOf<M, MemberPointerIn<M C::*, M T::*>, impl::ClassSetter<M, T, MemberPointerIn<M C::*, M T::*>>> {};

template <class T, class S, class Pointer = typename CallableTraits<S>::Pointer>
using SetterOfFunctionOn = SetterOf<SetterValue<S>, Pointer, impl::AdaptedClassSetter<SetterValue<S>, T, Pointer>>;

template <class T, FunctionOn<T> S>
    requires(CallableTraits<S>::arity == 2)
struct SetterTraits<T, S> : SetterOfFunctionOn<T, S> {};

template <class S, class Pointer = typename CallableTraits<S>::Pointer>
using SetterOfFunction = SetterOf<SetterValue<S>, Pointer, impl::ClasslessSetter<SetterValue<S>, Pointer>>;

template <class T, FreeFunction S>
    requires(CallableTraits<S>::arity == 1)
struct SetterTraits<T, S> : SetterOfFunction<S> {};

template <class T, class M>
    requires std::is_object_v<M> && (!std::is_const_v<M>)
struct SetterTraits<T, M*> : SetterOf<M, M*, impl::DataSetter<M>> {};

} // namespace orbis::factory::detail
