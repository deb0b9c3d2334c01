#include "dispatch/DirectInputs.hpp"

#include "dispatch/directRank.hpp"
#include "machine/Machine.hpp"

namespace velmara {

namespace {

bool readDirect(TypeReference const& type, orbis::COSValue const& input, orbis::COSValue& value)
{
    if (type.kind == TypeKind::Scalar)
        return type.scalar.read(input, value) != notConvertible;
    if (!input.isArray())
        return false;
    Array const& array = *Array::of(input.array());
    if (array.classID() == hvOBJECT_CLASS)
        Object::requireUsable(Machine::required(), array.objects());
    value = input;
    return directRank(type, array) != notConvertible;
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
