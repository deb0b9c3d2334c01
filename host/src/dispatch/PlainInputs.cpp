#include "dispatch/PlainInputs.hpp"

namespace velmara {

bool PlainInputs::readOthers(Parameter const* parameter, orbis::COSValue* value, Inputs inputs)
{
    for (hvArray_tag* const input : inputs)
        if (!input || (parameter++)->type.scalar.read(*Array::of(input), *value++) == noFit)
            return false;
    return true;
}

} // namespace velmara
