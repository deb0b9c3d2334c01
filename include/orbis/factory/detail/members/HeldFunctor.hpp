#pragma once

#include <memory>
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

    HeldFunctor(F function) : functor(std::make_shared<F>(std::move(function))) {}

    /// The one that a record keeps.
    explicit HeldFunctor(std::shared_ptr<void const> const& kept)
        : functor(std::const_pointer_cast<F>(std::static_pointer_cast<F const>(kept)))
    {
    }

    template <class... A>
    decltype(auto) operator()(A&&... arguments) const
    {
        return (*functor)(std::forward<A>(arguments)...);
    }

    std::shared_ptr<F> functor;
};

} // namespace orbis::factory::detail
