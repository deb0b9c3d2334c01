#pragma once

#include "system/ConvertedInputs.hpp"
#include "system/Method.hpp"

#include "velmara/ArrayPtr.hpp"

#include <span>

namespace velmara {

class HvmState;

using Inputs = std::span<hvArray_tag* const>;

/// What one call is made with. `self` is null where there is no object.
struct CallInputs {
    hvArray_tag* self;
    Inputs inputs;
};

/// How many values a call of the method needs at most.
inline std::size_t capacityFor(Inputs inputs)
{
    return inputs.size() + 1;
}

/// Refuses missing inputs, objects that are invalid and those of other virtual machines.
void checkInputs(HvmState const& machine, Inputs inputs);

/// Picks the one method of the group that takes the inputs and fits them best: at least as well as every other in
/// each input, and better in one. Fills `converted` with the inputs for it; nothing has been called by then.
/// Throws when no method may be called from outside, when none fits (with each one and the reason why not), and
/// when several fit equally well.
Method const& choose(MethodGroup const& group, CallInputs const& call, ConvertedInputs& converted);

/// Chooses a method and calls it; a failure inside it is final. The result is null when there is none.
ArrayPtr dispatch(HvmState const& machine, MethodGroup const& group, CallInputs const& call);

} // namespace velmara
