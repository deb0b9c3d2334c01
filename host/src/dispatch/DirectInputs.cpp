#include "dispatch/DirectInputs.hpp"

#include "dispatch/directRank.hpp"

namespace velmara {

namespace {

bool readDirect(TypeReference const& type, orbis::COSValue const& input, orbis::COSValue& value)
{
    if (type.kind == TypeKind::Scalar)
        return type.scalar.read(input, value) != notConvertible;
    value = input;
    return input.isArray() && directRank(type, *Array::of(input.array())) != notConvertible;
}

} // namespace

bool DirectInputs::readOthers(Parameter const* parameter, orbis::COSValue* value, std::span<hvArray_tag* const> inputs)
{
    for (hvArray_tag* const input : inputs)
        if (!readDirect((parameter++)->type, orbis::COSValue(input), *value++))
            return false;
    return true;
}

bool DirectInputs::readOthers(Parameter const* parameter, orbis::COSValue* value,
                              std::span<orbis::COSValue const> inputs)
{
    for (orbis::COSValue const& input : inputs)
        if (!readDirect((parameter++)->type, input, *value++))
            return false;
    return true;
}

} // namespace velmara
