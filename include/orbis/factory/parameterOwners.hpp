#pragma once

#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/detail/members/setterTraits.hpp"
#include "orbis/factory/marshaling/ObjectTransfer.hpp"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace orbis::factory {

namespace detail {

/// The parameters, with those at the indices `I` in `Owner`.
template <template <class> class Owner, class Parameters, class Indices, std::size_t... I>
struct OwnedParameters;

template <template <class> class Owner, class... A, std::size_t... Index, std::size_t... I>
struct OwnedParameters<Owner, TypeList<A...>, std::index_sequence<Index...>, I...> {
    /// Without indices it is the last parameter.
    template <std::size_t At>
    static constexpr bool isOwned = sizeof...(I) == 0 ? At + 1 == sizeof...(A) : ((I == At) || ...);

    using Type = TypeList<std::conditional_t<isOwned<Index>, Owner<A>, A>...>;
};

/// A callable of whose parameters the author says who owns them.
template <class F, template <class> class Owner, std::size_t... I>
struct ParameterOwnerOf {
    F function;

    template <class Pointer>
        requires std::is_convertible_v<F, Pointer>
    operator Pointer() const
    {
        return function;
    }
};

template <class F, template <class> class Owner, std::size_t... I>
    requires(CallableTraits<F>::kind != CallableKind::None)
struct CallableTraits<ParameterOwnerOf<F, Owner, I...>> : CallableTraits<F> {
    using Parameters = typename OwnedParameters<Owner, typename CallableTraits<F>::Parameters,
                                                std::make_index_sequence<CallableTraits<F>::arity>, I...>::Type;
};

template <class T, class M, class C, template <class> class Owner>
    requires std::is_object_v<M> && (!std::is_const_v<M>) && std::derived_from<T, C>
struct SetterTraits<T, ParameterOwnerOf<M C::*, Owner>>
    : SetterOf<MemberWriter<Owner<M>, T, MemberPointerIn<M C::*, M T::*>>> {};

template <class F, std::size_t... I>
inline constexpr bool hasParameters = CallableTraits<F>::arity > 0 && ((I < CallableTraits<F>::arity) && ...);

} // namespace detail

/// Says that native code keeps the object that it is given as a pointer or a reference: it stays alive as long as the
/// object that the member is called on, whatever scripts do with theirs. The numbers are those of the parameters,
/// counted from 0 as the function has them; without one it is the last.
///
///     .method("mount", kept(&Car::mount), "engine")
///     .property("engine", &Car::engine, kept(&Car::setEngine))
///     .constructor<Kept<Engine&>>("engine")
///
/// An object is never kept by what it keeps itself: that is refused.
template <std::size_t... I, class F>
constexpr auto kept(F function)
{
    if constexpr (!detail::hasParameters<F, I...>)
        detail::refuse<detail::Refusal::NoSuchParameter, F>();
    return detail::ParameterOwnerOf<F, Kept, I...>{function};
}

/// Says that native code owns, and will delete, the object that it is given as a pointer or a reference: the script's
/// becomes invalid when the call has returned. One that is shared, borrowed or a part of another is refused. A
/// `std::unique_ptr` is taken without being told.
template <std::size_t... I, class F>
constexpr auto taken(F function)
{
    if constexpr (!detail::hasParameters<F, I...>)
        detail::refuse<detail::Refusal::NoSuchParameter, F>();
    return detail::ParameterOwnerOf<F, Taken, I...>{function};
}

} // namespace orbis::factory
