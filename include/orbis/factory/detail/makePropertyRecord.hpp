#pragma once

#include "orbis/factory/PropertyRecord.hpp"
#include "orbis/factory/detail/CallableTraits.hpp"
#include "orbis/factory/impl/AdaptedClassGetter.hpp"
#include "orbis/factory/impl/AdaptedClassSetter.hpp"
#include "orbis/factory/impl/ClassGetter.hpp"
#include "orbis/factory/impl/ClassSetter.hpp"
#include "orbis/factory/impl/ClasslessGetter.hpp"

#include <type_traits>

namespace orbis::factory::detail {

template <class T, class Traits>
consteval bool takesOnlyObject()
{
    if constexpr (Traits::kind == CallableKind::Member)
        return std::is_base_of_v<typename Traits::Class, T> && Traits::arity == 0;
    else if constexpr (Traits::kind == CallableKind::Free)
        return Traits::arity == 1 && Traits::template takesObject<T>;
    else
        return false;
}

/// The type of the value that a setter takes; void when it is no setter of `T`.
template <class T, class Parameters, bool IsMember>
struct SetterValue {
    using Type = void;
};

template <class T, class A>
struct SetterValue<T, TypeList<A>, true> {
    using Type = A;
};

template <class T, class A>
struct SetterValue<T, TypeList<T*, A>, false> {
    using Type = A;
};

template <class T, class F>
struct SetterTraits {
    using Value = void;
};

template <class T, class F>
    requires(CallableTraits<F>::kind != CallableKind::None)
struct SetterTraits<T, F> {
    using Value = typename SetterValue<T, typename CallableTraits<F>::Parameters,
                                       CallableTraits<F>::kind == CallableKind::Member>::Type;
};

/// The type that a getter stores its result as; void when it is no getter of `T`.
template <class T, class F>
consteval auto storedType()
{
    using Traits = CallableTraits<F>;
    if constexpr (takesOnlyObject<T, Traits>())
        return std::type_identity<std::remove_cvref_t<typename Traits::Result>>{};
    else
        return std::type_identity<void>{};
}

template <class T, class F>
using Stored = typename decltype(storedType<T, F>())::type;

/// Gives the record a getter of `T` that calls `function`.
template <class T, class F>
void setGetter(PropertyRecord& record, F function)
{
    using Traits = CallableTraits<F>;
    using R = typename Traits::Result;
    using V = std::remove_cvref_t<R>;
    if constexpr (Traits::kind == CallableKind::Member) {
        using Pointer = typename Traits::template PointerIn<T>;
        record.getter = static_cast<Pointer>(function);
        record.makeGetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Getter> {
            return std::make_unique<impl::ClassGetter<R, T, Pointer, V>>(callable.as<Pointer>());
        };
    } else {
        using Pointer = typename Traits::Pointer;
        record.getter = static_cast<Pointer>(function);
        record.makeGetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Getter> {
            return std::make_unique<impl::AdaptedClassGetter<R, T, Pointer, V>>(callable.as<Pointer>());
        };
    }
}

/// Gives the record a getter without an object.
template <class F>
void setClasslessGetter(PropertyRecord& record, F function)
{
    using Traits = CallableTraits<F>;
    using R = typename Traits::Result;
    using Pointer = R (*)();
    record.getter = static_cast<Pointer>(function);
    record.makeGetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Getter> {
        return std::make_unique<impl::ClasslessGetter<R, std::remove_cvref_t<R>>>(callable.as<Pointer>());
    };
}

/// Gives the record a setter of `T` that calls `function`.
template <class T, class F>
void setSetter(PropertyRecord& record, F function)
{
    using Traits = CallableTraits<F>;
    using A = typename SetterTraits<T, F>::Value;
    if constexpr (Traits::kind == CallableKind::Member) {
        using Pointer = typename Traits::template PointerIn<T>;
        record.setter = static_cast<Pointer>(function);
        record.makeSetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Setter> {
            return std::make_unique<impl::ClassSetter<A, T, Pointer>>(callable.as<Pointer>());
        };
    } else {
        using Pointer = typename Traits::Pointer;
        record.setter = static_cast<Pointer>(function);
        record.makeSetter = [](impl::Callable const& callable) -> std::unique_ptr<impl::Setter> {
            return std::make_unique<impl::AdaptedClassSetter<A, T, Pointer>>(callable.as<Pointer>());
        };
    }
}

} // namespace orbis::factory::detail
