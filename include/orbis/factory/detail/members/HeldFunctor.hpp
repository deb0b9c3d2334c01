#pragma once

#include "orbis/factory/detail/members/KeptObject.hpp"

#include <utility>

namespace orbis::factory::detail {

/// Calls a functor that the member's record keeps alive. Its only member is a pointer, so a `Callable` that holds the
/// pointer can be read as this class.
template <class F>
struct FunctorCall {
    F* functor;

    template <class... A>
    decltype(auto) operator()(A&&... arguments) const
    {
        return (*functor)(std::forward<A>(arguments)...);
    }
};

/// A callable with state of its own, as it is described.
template <class F>
struct HeldFunctor {
    using Call = FunctorCall<F>;

    HeldFunctor(F function) : kept(KeptObject::make(std::move(function))) {}

    /// The one that a record keeps.
    explicit HeldFunctor(KeptObject const& functor) : kept(functor) {}

    /// What was kept is no constant.
    F* functor() const { return static_cast<F*>(const_cast<void*>(kept.get())); }

    template <class... A>
    decltype(auto) operator()(A&&... arguments) const
    {
        return (*functor())(std::forward<A>(arguments)...);
    }

    KeptObject kept;
};

} // namespace orbis::factory::detail
