#pragma once

#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/detail/members/getterTraits.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include <type_traits>

namespace orbis::factory {

namespace detail {

/// A callable of whose result the author says who owns it.
template <class F, ResultOwner Owner>
struct ResultOwnerOf {
    F function;

    template <class Pointer>
        requires std::is_convertible_v<F, Pointer>
    operator Pointer() const
    {
        return function;
    }
};

template <class F, ResultOwner Owner>
    requires(CallableTraits<F>::kind != CallableKind::None)
struct CallableTraits<ResultOwnerOf<F, Owner>> : CallableTraits<F> {
    using Result = OwnedResult<typename CallableTraits<F>::Result, Owner>;
};

template <class T, class M, class C, ResultOwner Owner>
    requires std::is_object_v<M> && std::derived_from<T, C>
struct GetterTraits<T, ResultOwnerOf<M C::*, Owner>>
    : GetterOf<MemberReader<OwnedResult<M const&, Owner>, T, MemberPointerIn<M C::*, M T::*>, std::remove_cv_t<M>>> {};

} // namespace detail

/// Says who owns the object that a function returns as a pointer or a reference. Without one of these, it is `inside`
/// the object that the member was called on, or `borrowed` when there is none; a result by value or in a
/// `std::unique_ptr` is `owned`.
///
///     .method("clone", owned(&Shape::clone))
///
/// `owned`: the host object, which deletes it. `copied`: the same, of a copy. `borrowed`: native code, as long as
/// scripts can use it. `inside`: the object that the member was called on, which is kept alive; when it is destroyed,
/// the result's host object becomes invalid.
template <class F>
constexpr auto owned(F function)
{
    return detail::ResultOwnerOf<std::decay_t<F>, ResultOwner::Host>{function};
}

/// See `owned`.
template <class F>
constexpr auto borrowed(F function)
{
    return detail::ResultOwnerOf<std::decay_t<F>, ResultOwner::Native>{function};
}

/// See `owned`.
template <class F>
constexpr auto inside(F function)
{
    return detail::ResultOwnerOf<std::decay_t<F>, ResultOwner::Whole>{function};
}

/// See `owned`.
template <class F>
constexpr auto copied(F function)
{
    return detail::ResultOwnerOf<std::decay_t<F>, ResultOwner::Copy>{function};
}

} // namespace orbis::factory
