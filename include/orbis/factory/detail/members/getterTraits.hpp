#pragma once

#include "orbis/factory/descriptors/AdaptedClassGetter.hpp"
#include "orbis/factory/descriptors/ClassGetter.hpp"
#include "orbis/factory/descriptors/ClasslessGetter.hpp"
#include "orbis/factory/descriptors/DataGetter.hpp"
#include "orbis/factory/descriptors/releasedBy.hpp"
#include "orbis/factory/detail/members/CallableTraits.hpp"

#include <concepts>
#include <type_traits>

/// What can be published as a getter of class `T`, and the getter that reads through it.
namespace orbis::factory::detail {

/// Member functions of `T` or of a public base.
template <class F, class T>
concept MethodOf =
    CallableTraits<F>::kind == CallableKind::Member && std::derived_from<T, typename CallableTraits<F>::Class>;

template <class F>
concept FreeFunction = CallableTraits<F>::kind == CallableKind::Free;

/// Free functions, lambdas and functors that take the object first.
template <class F, class T>
concept FunctionOn = FreeFunction<F> && CallableTraits<F>::template takesObject<T>;

/// `isGetter`; if that is true, also `Result`: the type that is read; `Pointer`: the type as which the callable is
/// stored; `Getter`: the class that reads through it.
template <class T, class G>
struct GetterTraits {
    static constexpr bool isGetter = false;
};

template <class R, class P, class Reader>
struct GetterOf {
    static constexpr bool isGetter = true;
    static constexpr bool needsObject = Reader::needsObject;
    using Result = R;
    using Pointer = P;
    using Getter = Reader;
};

template <class T, class G, class Traits = CallableTraits<G>>
using GetterOfMethod = GetterOf<typename Traits::Result, typename Traits::template PointerIn<T>,
                                impl::ClassGetter<typename Traits::Result, T, typename Traits::template PointerIn<T>,
                                                  std::remove_cvref_t<typename Traits::Result>>>;

template <class T, MethodOf<T> G>
    requires(CallableTraits<G>::arity == 0)
struct GetterTraits<T, G> : GetterOfMethod<T, G> {};

template <class T, class M, class C>
    requires std::is_object_v<M> && std::derived_from<T, C>
struct GetterTraits<T, M C::*>
    : GetterOf<M const&, MemberPointerIn<M C::*, M T::*>,
               impl::ClassGetter<M const&, T, MemberPointerIn<M C::*, M T::*>, std::remove_cv_t<M>>> {};

template <class T, class G, class Traits = CallableTraits<G>>
using GetterOfFunctionOn = GetterOf<typename Traits::Result, typename Traits::Pointer,
                                    impl::AdaptedClassGetter<typename Traits::Result, T, typename Traits::Pointer,
                                                             std::remove_cvref_t<typename Traits::Result>>>;

template <class T, FunctionOn<T> G>
    requires(CallableTraits<G>::arity == 1)
struct GetterTraits<T, G> : GetterOfFunctionOn<T, G> {};

template <class R, class Pointer>
using GetterOfFunction = GetterOf<R, Pointer, impl::ClasslessGetter<R, std::remove_cvref_t<R>, Pointer>>;

template <class T, FreeFunction G>
    requires(CallableTraits<G>::arity == 0)
struct GetterTraits<T, G> : GetterOfFunction<typename CallableTraits<G>::Result, typename CallableTraits<G>::Pointer> {
};

template <class T, class M>
    requires std::is_object_v<M>
struct GetterTraits<T, M*> : GetterOf<M const&, M const*, impl::DataGetter<std::remove_cv_t<M>>> {};

template <class T, auto Routine, class G>
struct GetterTraits<T, ReleasedGetter<Routine, G>> : GetterTraits<T, G> {};

/// The same for a release routine that takes the object: releasing then needs the object even if reading does not.
template <class T, auto Routine, class G>
    requires(GetterTraits<T, G>::isGetter &&
             (MethodOf<std::remove_cv_t<decltype(Routine)>, T> || FunctionOn<std::remove_cv_t<decltype(Routine)>, T>))
struct GetterTraits<T, ReleasedGetter<Routine, G>> : GetterTraits<T, G> {
    static constexpr bool needsObject = true;
};

} // namespace orbis::factory::detail
