#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/detail/members/HeldFunctor.hpp"

namespace orbis::factory::detail {

/// How a record stores a callable: as a pointer, or as one to a functor that it keeps.
template <class Pointer>
struct StoredCallable {
    using Call = Pointer;
    static constexpr bool isKept = false;

    static impl::Callable target(Pointer function) { return function; }
    static KeptObject kept(Pointer) { return {}; }
};

template <class F>
struct StoredCallable<HeldFunctor<F>> {
    using Call = typename HeldFunctor<F>::Call;
    static constexpr bool isKept = true;

    static impl::Callable target(HeldFunctor<F> const& held) { return held.functor(); }
    static KeptObject kept(HeldFunctor<F> const& held) { return held.kept; }
};

} // namespace orbis::factory::detail
