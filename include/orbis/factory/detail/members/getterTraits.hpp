#pragma once

#include "orbis/factory/descriptors/readers.hpp"
#include "orbis/factory/descriptors/releasedBy.hpp"
#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/detail/members/StoredCallable.hpp"

#include <concepts>
#include <type_traits>

/// What can be published as a getter of class `T`, and how it is read through.
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
/// stored; `Reader`: how it is read through.
template <class T, class G>
struct GetterTraits {
    static constexpr bool isGetter = false;
};

template <class ReaderType, class P = typename ReaderType::Pointer>
struct GetterOf {
    static constexpr bool isGetter = true;
    static constexpr bool needsObject = ReaderType::needsObject;
    using Reader = ReaderType;
    using Result = NativeResult<typename Reader::Result>;
    using Pointer = P;
};

template <class T, class G, class Traits = CallableTraits<G>>
using GetterOfMethod = GetterOf<MemberReader<typename Traits::Result, T, typename Traits::template PointerIn<T>,
                                             std::remove_cvref_t<NativeResult<typename Traits::Result>>>>;

template <class T, MethodOf<T> G>
    requires(CallableTraits<G>::arity == 0)
struct GetterTraits<T, G> : GetterOfMethod<T, G> {};

template <class T, class M, class C>
    requires std::is_object_v<M> && std::derived_from<T, C>
struct GetterTraits<T, M C::*>
    : GetterOf<MemberReader<M const&, T, MemberPointerIn<M C::*, M T::*>, std::remove_cv_t<M>>> {};

template <class T, class G, class Traits = CallableTraits<G>>
using GetterOfFunctionOn =
    GetterOf<FunctionOnReader<typename Traits::Result, T, typename StoredCallable<typename Traits::Pointer>::Call,
                              std::remove_cvref_t<NativeResult<typename Traits::Result>>>,
             typename Traits::Pointer>;

template <class T, FunctionOn<T> G>
    requires(CallableTraits<G>::arity == 1)
struct GetterTraits<T, G> : GetterOfFunctionOn<T, G> {};

template <class T, class G, class Traits = CallableTraits<G>>
using GetterOfFunction =
    GetterOf<FunctionReader<typename Traits::Result, std::remove_cvref_t<NativeResult<typename Traits::Result>>,
                            typename StoredCallable<typename Traits::Pointer>::Call>,
             typename Traits::Pointer>;

template <class T, FreeFunction G>
    requires(CallableTraits<G>::arity == 0)
struct GetterTraits<T, G> : GetterOfFunction<T, G> {};

template <class T, class M>
    requires std::is_object_v<M>
struct GetterTraits<T, M*> : GetterOf<DataReader<std::remove_cv_t<M>>> {};

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
