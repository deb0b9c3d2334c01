#pragma once

#include "orbis/factory/descriptors/writers.hpp"
#include "orbis/factory/detail/members/getterTraits.hpp"

/// What can be published as a setter of class `T`, and how it is written through.
namespace orbis::factory::detail {

/// `isSetter`; if that is true, also `Value`: the type that is written; `Pointer`: the type as which the callable is
/// stored; `Writer`: how it is written through.
template <class T, class S>
struct SetterTraits {
    static constexpr bool isSetter = false;
};

template <class WriterType, class P = typename WriterType::Pointer>
struct SetterOf {
    static constexpr bool isSetter = true;
    static constexpr bool needsObject = WriterType::needsObject;
    using Writer = WriterType;
    using Value = typename Writer::Value;
    using Pointer = P;
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
using SetterOfMethod = SetterOf<MemberWriter<SetterValue<S>, T, typename CallableTraits<S>::template PointerIn<T>>>;

template <class T, MethodOf<T> S>
    requires(CallableTraits<S>::arity == 1)
struct SetterTraits<T, S> : SetterOfMethod<T, S> {};

template <class T, class M, class C>
    requires std::is_object_v<M> && (!std::is_const_v<M>) && std::derived_from<T, C>
struct SetterTraits<T, M C::*> : SetterOf<MemberWriter<M, T, MemberPointerIn<M C::*, M T::*>>> {};

template <class T, FunctionOn<T> S>
    requires(CallableTraits<S>::arity == 2)
struct SetterTraits<T, S>
    : SetterOf<FunctionOnWriter<SetterValue<S>, T, typename StoredCallable<typename CallableTraits<S>::Pointer>::Call>,
               typename CallableTraits<S>::Pointer> {};

template <class T, FreeFunction S>
    requires(CallableTraits<S>::arity == 1)
struct SetterTraits<T, S>
    : SetterOf<FunctionWriter<SetterValue<S>, typename StoredCallable<typename CallableTraits<S>::Pointer>::Call>,
               typename CallableTraits<S>::Pointer> {};

template <class T, class M>
    requires std::is_object_v<M> && (!std::is_const_v<M>)
struct SetterTraits<T, M*> : SetterOf<DataWriter<M>> {};

} // namespace orbis::factory::detail
