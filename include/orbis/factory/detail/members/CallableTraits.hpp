#pragma once

#include "orbis/factory/base/typeName.hpp"
#include "orbis/factory/detail/members/HeldFunctor.hpp"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace orbis::factory::detail {

template <class... T>
struct TypeList {
    static constexpr std::size_t size = sizeof...(T);
};

enum class CallableKind { None, Free, Member };

/// Properties of a callable: its kind, result and parameters, and the pointer type as which it is stored.
template <class F>
struct CallableTraits {
    static constexpr CallableKind kind = CallableKind::None;
    static constexpr std::size_t arity = 20;
};

template <class R, class... A>
struct CallableTraits<R (*)(A...)> {
    static constexpr CallableKind kind = CallableKind::Free;
    static constexpr std::size_t arity = sizeof...(A);
    using Result = R;
    using Parameters = TypeList<A...>;
    using Pointer = R (*)(A...);

    template <class T>
    static constexpr bool takesObject = false;
};

template <class R, class First, class... A>
struct CallableTraits<R (*)(First, A...)> {
    static constexpr CallableKind kind = CallableKind::Free;
    static constexpr std::size_t arity = 1 + sizeof...(A);
    using Result = R;
    using Parameters = TypeList<First, A...>;
    using Pointer = R (*)(First, A...);

    template <class T>
    static constexpr bool takesObject = std::is_same_v<First, T*> || std::is_same_v<First, T const*>;
};

template <class R, class... A>
struct CallableTraits<R (*)(A...) noexcept> : CallableTraits<R (*)(A...)> {};

/// Converts the type of a pointer to a member of a base into that of a pointer to a member of the derived class, so
/// that members of one type share one routine. There is no such conversion from a virtual base: that type stays.
template <class InBase, class InDerived>
using MemberPointerIn = std::conditional_t<std::is_convertible_v<InBase, InDerived>, InDerived, InBase>;

template <class C, class R, bool IsConst, class... A>
struct MemberTraits {
    template <class T>
    using PointerTo = std::conditional_t<IsConst, R (T::*)(A...) const, R (T::*)(A...)>;

    static constexpr CallableKind kind = CallableKind::Member;
    static constexpr std::size_t arity = sizeof...(A);
    using Result = R;
    using Parameters = TypeList<A...>;
    using Class = C;

    /// The pointer to this function as a member of a derived class.
    template <class T>
    using PointerIn = MemberPointerIn<PointerTo<C>, PointerTo<T>>;
};

template <class C, class R, class... A>
struct CallableTraits<R (C::*)(A...)> : MemberTraits<C, R, false, A...> {};
template <class C, class R, class... A>
struct CallableTraits<R (C::*)(A...) const> : MemberTraits<C, R, true, A...> {};
template <class C, class R, class... A>
struct CallableTraits<R (C::*)(A...) noexcept> : MemberTraits<C, R, false, A...> {};
template <class C, class R, class... A>
struct CallableTraits<R (C::*)(A...) const noexcept> : MemberTraits<C, R, true, A...> {};

/// Captureless lambdas are handled as the free function they convert to.
template <class F>
    requires std::is_class_v<F> && requires(F function) { +function; }
struct CallableTraits<F> : CallableTraits<decltype(+std::declval<F>())> {};

/// The function type of a call operator that is not overloaded.
template <class Operator>
struct CallOperator;

template <class C, class R, class... A>
struct CallOperator<R (C::*)(A...)> {
    using Pointer = R (*)(A...);
};

template <class C, class R, class... A>
struct CallOperator<R (C::*)(A...) const> : CallOperator<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct CallOperator<R (C::*)(A...) noexcept> : CallOperator<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct CallOperator<R (C::*)(A...) const noexcept> : CallOperator<R (C::*)(A...)> {};

/// Lambdas that capture, and other classes with one call operator: handled as free functions, which keep the object.
template <class F>
concept Functor =
    std::is_class_v<F> && std::is_copy_constructible_v<F> && !isOfStandardLibrary<F> &&
    !requires(F function) { +function; } && requires { typename CallOperator<decltype(&F::operator())>::Pointer; };

template <Functor F>
struct CallableTraits<F> : CallableTraits<typename CallOperator<decltype(&F::operator())>::Pointer> {
    using Pointer = HeldFunctor<F>;
};

} // namespace orbis::factory::detail
