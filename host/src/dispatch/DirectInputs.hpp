#pragma once

#include "arrays/Array.hpp"
#include "members/Method.hpp"

#include "orbis/COSValue.hpp"

#include <span>

namespace velmara {

/// The inputs of a call of a method with few (`Method::takesFewInputs`) where each is a value of its type as it stands,
/// or a scalar: converting them runs no native code and creates nothing that would have to be released.
class DirectInputs {
public:
    DirectInputs() {}

    /// False when they are not, or do not fit, or `self` is of another class. An `Input` is an array or an
    /// `orbis::COSValue`.
    template <class Input>
    [[gnu::always_inline]] bool read(Method const& method, hvArray_tag* self, std::span<Input const> inputs)
    {
        Parameter const* parameters = method.inputs.data();
        orbis::COSValue* values = values_;
        if (method.inputCount != inputs.size() + method.takesObject)
            return false;
        if (method.takesObject) {
            if (!self || parameters->type.name != Array::of(self)->objectClass())
                return false;
            *values++ = orbis::COSValue(self);
            ++parameters;
        }
        return readDoubles(parameters, values, inputs) || readOthers(parameters, values, inputs);
    }

    orbis::COSValue const* values() const { return values_; }

private:
    [[gnu::always_inline]] static bool readDouble(ScalarReader const& reader, hvArray_tag* input,
                                                  orbis::COSValue& value)
    {
        return input && reader.readDouble(*Array::of(input), value);
    }
    [[gnu::always_inline]] static bool readDouble(ScalarReader const& reader, orbis::COSValue const& input,
                                                  orbis::COSValue& value)
    {
        return reader.readDouble(input, value);
    }

    // Apart from other conversions, so that this loop calls nothing.
    template <class Input>
    [[gnu::always_inline]] static bool readDoubles(Parameter const* parameter, orbis::COSValue* value,
                                                   std::span<Input const> inputs)
    {
        for (Input const& input : inputs)
            if (!readDouble((parameter++)->type.scalar, input, *value++))
                return false;
        return true;
    }

    static bool readOthers(Parameter const* parameter, orbis::COSValue* value, std::span<hvArray_tag* const> inputs);
    static bool readOthers(Parameter const* parameter, orbis::COSValue* value, std::span<orbis::COSValue const> inputs);

    union {
        orbis::COSValue values_[Method::fewInputs]; ///< not initialized: only what is read is ever used
    };
};

} // namespace velmara
