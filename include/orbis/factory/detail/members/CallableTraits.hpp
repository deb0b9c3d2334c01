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

enum class CallableKind {
    None,
    Free,
    Member,
    OnRvalue ///< a member function that cannot be called on an object with a name
};

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

/// The signature of a member function: its result and parameters, and its type without `noexcept`, so that functions
/// that differ in that share one routine. None for those that can only be called on rvalues.
template <class Function>
struct MemberSignature {
    static constexpr CallableKind kind = CallableKind::OnRvalue;
    static constexpr std::size_t arity = 20;
    using Type = Function;
};

template <class Function, class R, class... A>
struct CallableOnObject {
    static constexpr CallableKind kind = CallableKind::Member;
    static constexpr std::size_t arity = sizeof...(A);
    using Result = R;
    using Parameters = TypeList<A...>;
    using Type = Function;
    using Pointer = R (*)(A...);
};

template <class R, class... A>
struct MemberSignature<R(A...)> : CallableOnObject<R(A...), R, A...> {};
template <class R, class... A>
struct MemberSignature<R(A...) const> : CallableOnObject<R(A...) const, R, A...> {};
template <class R, class... A>
struct MemberSignature<R(A...)&> : CallableOnObject<R(A...)&, R, A...> {};
template <class R, class... A>
struct MemberSignature<R(A...) const&> : CallableOnObject<R(A...) const&, R, A...> {};
template <class R, class... A>
struct MemberSignature<R(A...) noexcept> : MemberSignature<R(A...)> {};
template <class R, class... A>
struct MemberSignature<R(A...) const noexcept> : MemberSignature<R(A...) const> {};
template <class R, class... A>
struct MemberSignature<R(A...) & noexcept> : MemberSignature<R(A...)&> {};
template <class R, class... A>
struct MemberSignature<R(A...) const & noexcept> : MemberSignature<R(A...) const&> {};

template <class Function, class C>
    requires std::is_function_v<Function>
struct CallableTraits<Function C::*> : MemberSignature<Function> {
    using Class = C;

    /// The pointer to this function as a member of a derived class.
    template <class T>
    using PointerIn =
        MemberPointerIn<typename MemberSignature<Function>::Type C::*, typename MemberSignature<Function>::Type T::*>;
};

/// Captureless lambdas are handled as the free function they convert to.
template <class F>
    requires std::is_class_v<F> && requires(F function) { +function; }
struct CallableTraits<F> : CallableTraits<decltype(+std::declval<F>())> {};

/// The function type of a call operator that is not overloaded.
template <class Operator>
struct CallOperator;

template <class C, class Function>
    requires(MemberSignature<Function>::kind == CallableKind::Member)
struct CallOperator<Function C::*> {
    using Pointer = typename MemberSignature<Function>::Pointer;
};

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
