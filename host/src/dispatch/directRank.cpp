#include "dispatch/directRank.hpp"

#include "objects/Object.hpp"

namespace velmara {

namespace {

ConversionRank directElementsRank(TypeReference const& type, Array const& input)
{
    if (input.classID() != type.scalarClass)
        return notConvertible;
    return input.isScalar() ? exactRank - 1 : exactRank;
}

ConversionRank directObjectRank(TypeReference const& type, Array const& input)
{
    bool const isOne = !type.element && input.size() == 1 && input.objects().front();
    return isOne && input.objects().front()->className() == type.name ? exactRank : notConvertible;
}

} // namespace

ConversionRank directRank(TypeReference const& type, Array const& input)
{
    switch (type.kind) {
    case TypeKind::Text:
        return input.isText() ? exactRank : notConvertible;
    case TypeKind::Elements:
        return directElementsRank(type, input);
    case TypeKind::Any:
        return anyRank;
    case TypeKind::Named:
        return input.classID() == hvOBJECT_CLASS ? directObjectRank(type, input) : notConvertible;
    case TypeKind::Function:
        return input.function() ? exactRank : notConvertible;
    default:
        return notConvertible;
    }
}

} // namespace velmara
