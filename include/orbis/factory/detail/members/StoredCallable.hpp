#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/detail/members/HeldFunctor.hpp"

#include <memory>

namespace orbis::factory::detail {

/// How a record stores a callable: as a pointer, or as one to a functor that it keeps.
template <class Pointer>
struct StoredCallable {
    using Call = Pointer;

    static impl::Callable target(Pointer function) { return function; }
    static std::shared_ptr<void const> kept(Pointer) { return {}; }
    static Pointer load(impl::Callable const& target, std::shared_ptr<void const> const&)
    {
        return target.as<Pointer>();
    }
};

template <class F>
struct StoredCallable<HeldFunctor<F>> {
    using Call = typename HeldFunctor<F>::Call;

    static impl::Callable target(HeldFunctor<F> const& held) { return held.functor.get(); }
    static std::shared_ptr<void const> kept(HeldFunctor<F> const& held) { return held.functor; }
    static HeldFunctor<F> load(impl::Callable const&, std::shared_ptr<void const> const& kept)
    {
        return HeldFunctor<F>(kept);
    }
};

} // namespace orbis::factory::detail
