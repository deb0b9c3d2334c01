#pragma once

#include "dispatch/CallInputs.hpp"
#include "dispatch/ConvertedInputs.hpp"
#include "dispatch/ResultValue.hpp"
#include "dispatch/ScalarInputs.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara {

class Machine;

/// Throws for missing inputs, and for objects that are invalid or of other virtual machines.
void checkInputs(Machine const& machine, Inputs inputs);

/// Converts the inputs for one method and calls `visit` with the rank of each explicit one; false when one does not
/// fit.
template <class Visit>
[[gnu::always_inline]] inline bool convertFor(Method const& method, CallInputs const& call, ConvertedInputs& converted,
                                              Visit visit)
{
    if (!takesInputs(method, call))
        return false;
    Parameter const* parameter = method.inputs.data();
    if (method.takesObject) {
        if (parameter->type.name == Array::of(call.self)->objectClass()) [[likely]]
            converted.addAsIs(call.self);
        else if (converted.addSelf(parameter->type, call.self) == notConvertible)
            return false;
        ++parameter;
    }
    for (hvArray_tag* const input : call.inputs) {
        ConversionRank const rank = input ? converted.add((parameter++)->type, input) : notConvertible;
        if (rank == notConvertible)
            return false;
        visit(rank);
    }
    return true;
}

/// Of several methods that may be called, the one that fits the inputs best: at least as well as every other in each
/// input, and better in one. Throws when none may be called, when none fits (with each one and the reason), and when
/// several fit equally well.
Method const& chooseAmong(MethodGroup const& group, CallInputs call);

/// The errors of the dispatch. Each names what may be called and what was given.
[[noreturn]] void throwNoMatch(std::span<Method const* const> candidates, CallInputs const& call);
[[noreturn]] void throwAmbiguous(std::span<Method const* const> rivals, CallInputs const& call);

/// Throws why no method of the group can be called.
[[noreturn]] void throwUncallable(MethodGroup const& group, CallInputs call);

/// The method of the group to be called. Fills `converted` with its inputs; calls nothing. Throws like `chooseAmong`,
/// and for methods that are abstract or not open to calls from outside.
[[gnu::always_inline]] inline Method const& choose(MethodGroup const& group, CallInputs const& call,
                                                   ConvertedInputs& converted)
{
    Method const& chosen = group.only ? *group.only : chooseAmong(group, call);
    if (!convertFor(chosen, call, converted, [](ConversionRank) {}) || chosen.isAbstract) [[unlikely]]
        throwUncallable(group, call);
    return chosen;
}

/// Calls a method with converted inputs. The result is null when there is none.
[[gnu::always_inline]] inline ArrayPtr invoke(Method const& method, int inputCount, orbis::COSValue const* inputs)
{
    ResultValue result(method.outputType);
    int outputCount = 0;
    method.info->invoke(nullptr, outputCount, &result.slot(), inputCount, inputs);
    return outputCount == 0 ? nullptr : result.take(method.name);
}

/// Chooses a method of the group and calls it.
ArrayPtr dispatch(MethodGroup const& group, CallInputs const& call);

/// The same on an object, an array: shorter for the one method that takes and returns only scalars, as most do.
[[gnu::always_inline]] inline ArrayPtr dispatchOnObject(MethodGroup const& group, hvArray_tag* self, Inputs inputs)
{
    if (Method const* const method = group.only; method && method->takesOnlyScalars) [[likely]] {
        ScalarInputs scalars;
        if (scalars.read(*method, self, inputs)) [[likely]]
            return invoke(*method, static_cast<int>(method->inputCount), scalars.values());
    }
    return dispatch(group, {self, inputs});
}

} // namespace velmara
