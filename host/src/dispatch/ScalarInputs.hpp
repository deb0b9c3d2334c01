#pragma once

#include "arrays/Array.hpp"
#include "dispatch/CallInputs.hpp"

#include "orbis/COSValue.hpp"

namespace velmara {

/// The inputs of a method that takes only scalars (`Method::takesOnlyScalars`): converting them runs no native code and
/// creates nothing that would have to be released.
class ScalarInputs {
public:
    ScalarInputs() {}

    /// False when they do not fit, or `self` is of another class.
    [[gnu::always_inline]] bool read(Method const& method, hvArray_tag* self, Inputs inputs)
    {
        Parameter const* const parameters = method.inputs.data();
        if (method.inputCount != inputs.size() + 1 || parameters->type.name != Array::of(self)->objectClass())
            return false;
        values_[0] = orbis::COSValue(self);
        return readDoubles(parameters + 1, values_ + 1, inputs) || readOthers(parameters + 1, values_ + 1, inputs);
    }

    orbis::COSValue const* values() const { return values_; }

private:
    // Apart from other conversions, so that this loop calls nothing.
    [[gnu::always_inline]] static bool readDoubles(Parameter const* parameter, orbis::COSValue* value, Inputs inputs)
    {
        for (hvArray_tag* const input : inputs)
            if (!input || !(parameter++)->type.scalar.readDouble(*Array::of(input), *value++))
                return false;
        return true;
    }

    static bool readOthers(Parameter const* parameter, orbis::COSValue* value, Inputs inputs);

    union {
        orbis::COSValue values_[Method::maxScalarInputs]; ///< not initialized: only what is read is ever used
    };
};

} // namespace velmara
