#pragma once

#include "members/Method.hpp"

#include <cstddef>
#include <span>

namespace velmara {

using Inputs = std::span<hvArray_tag* const>;

/// The arguments of one call. `self` is an object array, or null where there is no object.
struct CallInputs {
    hvArray_tag* self;
    Inputs inputs;

    /// The most values that the call can need.
    std::size_t capacity() const { return inputs.size() + 1; }
};

/// True when the method can be called with so many inputs, and on an object where it needs one.
inline bool takesInputs(Method const& method, CallInputs const& call)
{
    return method.inputCount == call.inputs.size() + method.takesObject && (!method.takesObject || call.self);
}

} // namespace velmara
