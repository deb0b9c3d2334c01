#include "velmara/Hvm.hpp"

#include "system/ArrayComparison.hpp"
#include "system/Object.hpp"
#include "values/Array.hpp"

#include <algorithm>

namespace velmara {

namespace {

bool isObjectArray(hvArray_tag const* array)
{
    return array && Array::of(array)->classID() == hvOBJECT_CLASS;
}

} // namespace

bool isValid(hvArray_tag const* array)
{
    return isObjectArray(array) && Array::of(array)->size() != 0 &&
           std::ranges::all_of(Array::of(array)->objects(),
                               [](Object const* object) { return object && object->isValid(); });
}

bool isSameObject(hvArray_tag const* a, hvArray_tag const* b)
{
    return isObjectArray(a) && isObjectArray(b) && Array::of(a)->size() == 1 && Array::of(b)->size() == 1 &&
           Array::of(a)->objects().front() && Array::of(a)->objects().front() == Array::of(b)->objects().front();
}

bool isEqual(hvArray_tag const* a, hvArray_tag const* b)
{
    return areEqual(a, b);
}

std::string className(hvArray_tag const* array)
{
    return array ? std::string(Array::of(array)->className()) : std::string();
}

} // namespace velmara
