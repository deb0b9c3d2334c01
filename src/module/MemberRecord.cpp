#include "orbis/factory/detail/members/defaultedOverloads.hpp"
#include "orbis/factory/detail/members/makeRecord.hpp"

namespace orbis::factory::detail {

MemberRecord makeRecord(CallableForm const& form, char const* name, impl::Callable const& target,
                        char const* parameterNames, MethodText text)
{
    return {.kind = form.kind,
            .name = name,
            .parameterNames = parameterNames,
            .attributes = text.attributes(),
            .outputType = form.outputType,
            .inputTypes = {form.inputTypes, form.inputCount},
            .invokeFn = form.invokeFn,
            .target = target,
            .text = text.text(),
            .namesInputs = form.namesInputs};
}

MemberRecord defaultedOverload(MemberRecord const& full, std::size_t omitted, impl::Invoker::InvokeFn routine,
                               KeptObject const& kept)
{
    MemberRecord overload = full;
    overload.inputTypes = full.inputTypes.first(full.inputTypes.size() - omitted);
    overload.invokeFn = routine;
    overload.target = kept.get();
    overload.kept = kept;
    return overload;
}

} // namespace orbis::factory::detail
