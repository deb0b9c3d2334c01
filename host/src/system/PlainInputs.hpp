#pragma once

#include "system/CallInputs.hpp"
#include "values/Array.hpp"

#include "orbis/COSValue.hpp"

namespace velmara {

/// The inputs of a plain method (`Method::isPlain`): no conversion of them runs native code or makes anything that
/// would have to be given back.
class PlainInputs {
public:
    PlainInputs() {}

    /// False when the method cannot be called with them.
    [[gnu::always_inline]] bool read(Method const& method, CallInputs const& call)
    {
        if (!takesInputs(method, call))
            return false;
        Parameter const* parameter = method.inputs.data();
        orbis::COSValue* value = values_;
        if (method.takesObject) {
            if (parameter->type.name != Array::of(call.self)->objectClass())
                return false;
            *value++ = orbis::COSValue(call.self);
            ++parameter;
        }
        for (hvArray_tag* const input : call.inputs) {
            if (!input || parameter->type.scalar.read(*Array::of(input), *value) == noFit)
                return false;
            ++parameter;
            ++value;
        }
        return true;
    }

    orbis::COSValue const* values() const { return values_; }

private:
    union {
        orbis::COSValue values_[Method::mostPlainInputs]; ///< not initialised: only what is read is ever used
    };
};

} // namespace velmara
