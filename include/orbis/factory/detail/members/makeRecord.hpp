#pragma once

#include "orbis/factory/detail/members/CallableForm.hpp"
#include "orbis/factory/detail/members/Routines.hpp"

#include <type_traits>

namespace orbis::factory::detail {

template <class Parameters>
struct InputTypes;

template <class... A>
struct InputTypes<TypeList<A...>> {
    static constexpr TypeText texts[] = {&dataTypeText<A>..., nullptr};
    static constexpr bool refuseNull = (refusesNull<A>() || ... || false);
};

template <MemberRecord::Kind Kind, class Result, class Parameters, class Routine>
inline constexpr CallableForm callableForm{Kind,
                                           InputTypes<Parameters>::refuseNull,
                                           &dataTypeText<NativeResult<Result>>,
                                           static_cast<TypeText const*>(InputTypes<Parameters>::texts),
                                           Parameters::size,
                                           &Routine::invoke};

/// How a record stores a callable: as a pointer, or as one to a functor that it keeps.
template <class Pointer>
struct StoredCallable {
    using Call = Pointer;

    static impl::Callable target(Pointer function) { return function; }
};

template <class F>
struct StoredCallable<HeldFunctor<F>> {
    using Call = typename HeldFunctor<F>::Call;

    static impl::Callable target(HeldFunctor<F> const& held) { return held.functor(); }
};

template <class Pointer, class Result, class Parameters>
inline constexpr CallableForm const& freeFunctionForm =
    callableForm<MemberRecord::Kind::FreeFunction, Result, Parameters,
                 FreeFunctionRoutine<typename StoredCallable<Pointer>::Call, Result, Parameters>>;

template <class Pointer, class Result, class Parameters>
MemberRecord freeFunctionRecord(char const* name, Pointer function, char const* names, MethodText text)
{
    MemberRecord record = makeRecord(freeFunctionForm<Pointer, Result, Parameters>, name,
                                     StoredCallable<Pointer>::target(function), names, text);
    if constexpr (requires { function.kept; })
        record.kept = function.kept;
    return record;
}

} // namespace orbis::factory::detail
