#pragma once

#include "arrays/Array.hpp"
#include "dispatch/CallInputs.hpp"

#include "orbis/COSValue.hpp"

namespace velmara {

/// The inputs of a plain method (`Method::takesOnlyScalars`): no conversion of them runs native code or makes anything
/// that would have to be given back.
class ScalarInputs {
public:
    ScalarInputs() {}

    /// False when the method cannot be called with them. A method that takes an object is given `self`, an array.
    [[gnu::always_inline]] bool readForObject(Method const& method, hvArray_tag* self, Inputs inputs)
    {
        Parameter const* const parameters = method.inputs.data();
        if (method.inputCount != inputs.size() + 1 || parameters->type.name != Array::of(self)->objectClass())
            return false;
        values_[0] = orbis::COSValue(self);
        return readScalars(parameters + 1, values_ + 1, inputs);
    }

    /// The same for a method without an object.
    [[gnu::always_inline]] bool read(Method const& method, Inputs inputs)
    {
        return method.inputCount == inputs.size() && readScalars(method.inputs.data(), values_, inputs);
    }

    orbis::COSValue const* values() const { return values_; }

private:
    [[gnu::always_inline]] static bool readScalars(Parameter const* parameters, orbis::COSValue* values, Inputs inputs)
    {
        return readDoubles(parameters, values, inputs) || readOthers(parameters, values, inputs);
    }

    // Apart from the other conversions, so that no call is in this loop.
    [[gnu::always_inline]] static bool readDoubles(Parameter const* parameter, orbis::COSValue* value, Inputs inputs)
    {
        for (hvArray_tag* const input : inputs)
            if (!input || !(parameter++)->type.scalar.readDouble(*Array::of(input), *value++))
                return false;
        return true;
    }

    static bool readOthers(Parameter const* parameter, orbis::COSValue* value, Inputs inputs);

    union {
        orbis::COSValue values_[Method::maxScalarInputs]; ///< not initialised: only what is read is ever used
    };
};

} // namespace velmara
