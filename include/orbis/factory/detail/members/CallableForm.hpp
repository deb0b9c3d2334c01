#pragma once

#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"

namespace orbis::factory::detail {

/// What the records of all callables of one type have in common; static. See `MemberRecord` for its members.
struct CallableForm {
    MemberRecord::Kind kind;
    bool namesInputs;
    TypeText outputType;
    TypeText const* inputTypes;
    std::size_t inputCount;
    impl::Invoker::InvokeFn invokeFn;
};

/// Returns the record of one such callable; see `MemberRecord` for the arguments.
ORBIS_FACTORY_API MemberRecord makeRecord(CallableForm const& form, char const* name, impl::Callable const& target,
                                          char const* parameterNames, MethodText text);

} // namespace orbis::factory::detail
