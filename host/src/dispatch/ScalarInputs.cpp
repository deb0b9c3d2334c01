#include "dispatch/ScalarInputs.hpp"

namespace velmara {

bool ScalarInputs::readOthers(Parameter const* parameter, orbis::COSValue* value, Inputs inputs)
{
    for (hvArray_tag* const input : inputs)
        if (!input || (parameter++)->type.scalar.read(*Array::of(input), *value++) == notConvertible)
            return false;
    return true;
}

} // namespace velmara
