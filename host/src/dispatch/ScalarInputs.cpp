#include "dispatch/ScalarInputs.hpp"

namespace velmara {

bool ScalarInputs::readOthers(Parameter const* parameter, orbis::COSValue* value, std::span<hvArray_tag* const> inputs)
{
    for (hvArray_tag* const input : inputs)
        if (!input || (parameter++)->type.scalar.read(*Array::of(input), *value++) == notConvertible)
            return false;
    return true;
}

bool ScalarInputs::readOthers(Parameter const* parameter, orbis::COSValue* value,
                              std::span<orbis::COSValue const> inputs)
{
    for (orbis::COSValue const& input : inputs)
        if ((parameter++)->type.scalar.read(input, *value++) == notConvertible)
            return false;
    return true;
}

} // namespace velmara
