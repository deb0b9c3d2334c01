#pragma once

#include "dispatch/CallInputs.hpp"
#include "dispatch/ConvertedInputs.hpp"
#include "dispatch/DirectInputs.hpp"
#include "dispatch/InputArrays.hpp"
#include "dispatch/ResultValue.hpp"

#include "velmara/Error.hpp"
#include "velmara/Value.hpp"

#include <optional>

namespace velmara {

class Machine;

/// Where a call that is refused puts its error; null for one that throws it.
using Failure = std::optional<Error>*;

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
/// input, and better in one. Refuses the call, and returns null, when none may be called, when none fits (with each one
/// and the reason), and when several fit equally well.
Method const* chooseAmong(MethodGroup const& group, CallInputs call, Failure failure);

/// The errors of the dispatch. Each names what may be called and what was given.
void refuseNoMatch(std::span<Method const* const> candidates, CallInputs const& call, Failure failure);
void refuseAmbiguous(std::span<Method const* const> rivals, CallInputs const& call, Failure failure);

/// Why no method of the group can be called.
void refuseUncallable(MethodGroup const& group, CallInputs call, Failure failure);

/// The method of the group to be called. Fills `converted` with its inputs; calls nothing. Refuses the call like
/// `chooseAmong`, and for methods that are abstract or not open to calls from outside.
[[gnu::always_inline]] inline Method const* choose(MethodGroup const& group, CallInputs const& call,
                                                   ConvertedInputs& converted, Failure failure)
{
    Method const* const chosen = group.only ? group.only : chooseAmong(group, call, failure);
    if (!chosen) [[unlikely]]
        return nullptr;
    if (convertFor(*chosen, call, converted, [](ConversionRank) {}) && !chosen->isAbstract) [[likely]]
        return chosen;
    refuseUncallable(group, call, failure);
    return nullptr;
}

/// Calls a method with converted inputs. The result is empty when there is none.
[[gnu::always_inline]] inline Value invoke(Method const& method, int inputCount, orbis::COSValue const* inputs)
{
    ResultValue result(method.outputType);
    int outputCount = 0;
    method.info->invoke(nullptr, outputCount, &result.slot(), inputCount, inputs);
    return outputCount == 0 ? Value() : result.take(method.name);
}

/// Chooses a method of the group and calls it.
Value dispatchArrays(MethodGroup const& group, CallInputs const& call, Failure failure);
inline Value dispatchArrays(MethodGroup const& group, hvArray_tag* self, Inputs inputs, Failure failure)
{
    return dispatchArrays(group, {self, inputs}, failure);
}
Value dispatchArrays(MethodGroup const& group, hvArray_tag* self, std::span<orbis::COSValue const> inputs,
                     Failure failure);

/// The same, shorter for the only method of the group when nothing is to be converted, as most often. An `Input` is an
/// array or an `orbis::COSValue`.
template <class Input>
[[gnu::always_inline]] inline Value dispatch(MethodGroup const& group, hvArray_tag* self, std::span<Input const> inputs,
                                             Failure failure)
{
    if (Method const* const method = group.only; method && method->takesFewInputs) [[likely]] {
        DirectInputs direct;
        if (direct.read(*method, self, inputs)) [[likely]]
            return invoke(*method, static_cast<int>(method->inputCount), direct.values());
    }
    return dispatchArrays(group, self, inputs, failure);
}

} // namespace velmara
