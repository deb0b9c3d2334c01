#pragma once

#include "orbis/factory/detail/members/CallableForm.hpp"
#include "orbis/factory/detail/members/Routines.hpp"
#include "orbis/factory/detail/members/StoredCallable.hpp"

#include <type_traits>

namespace orbis::factory::detail {

template <class Parameters>
struct InputTypes;

template <class... A>
struct InputTypes<TypeList<A...>> {
    static constexpr TypeText texts[sizeof...(A) > 0 ? sizeof...(A) : 1] = {&dataTypeText<A>...};

    /// Whether errors of converting one of the inputs are thrown without its name.
    static constexpr bool needNames = ((refusesNull<A>() || NamesInput<A>) || ... || false);
};

template <MemberRecord::Kind Kind, class Result, class Parameters, class Routine>
inline constexpr CallableForm callableForm{Kind,
                                           InputTypes<Parameters>::needNames,
                                           &dataTypeText<NativeResult<Result>>,
                                           static_cast<TypeText const*>(InputTypes<Parameters>::texts),
                                           Parameters::size,
                                           &Routine::invoke};

template <class Pointer, class Result, class Parameters>
inline constexpr CallableForm const& freeFunctionForm =
    callableForm<MemberRecord::Kind::FreeFunction, Result, Parameters,
                 FreeFunctionRoutine<typename StoredCallable<Pointer>::Call, Result, Parameters>>;

template <class Pointer, class Result, class Parameters>
MemberRecord freeFunctionRecord(char const* name, Pointer function, char const* names, MethodText text)
{
    MemberRecord record = makeRecord(freeFunctionForm<Pointer, Result, Parameters>, name,
                                     StoredCallable<Pointer>::target(function), names, text);
    record.kept = StoredCallable<Pointer>::kept(function);
    return record;
}

} // namespace orbis::factory::detail
