#include "velmara/Hvm.hpp"

#include "arrays/Array.hpp"
#include "arrays/arrayComparison.hpp"
#include "classes/classHierarchy.hpp"
#include "objects/Object.hpp"

#include <algorithm>
#include <vector>

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

ArrayPtr objectRow(std::span<orbis::COSInterfacePtr const> objects)
{
    std::vector<Object*> row;
    for (orbis::COSInterfacePtr const& object : objects)
        row.push_back(static_cast<Object*>(static_cast<orbis::COSInterface*>(object)));
    Name const common = commonClass(row);
    if (!common)
        return nullptr;
    ArrayPtr array(Array::createObjects(common, 1, row.size()));
    for (std::size_t i = 0; i < row.size(); ++i)
        Array::of(array.get())->setObject(i, row[i]);
    return array;
}

std::string className(hvArray_tag const* array)
{
    return std::string(sharedClassName(array));
}

std::string_view sharedClassName(hvArray_tag const* array)
{
    return array ? Array::of(array)->className() : std::string_view();
}

std::uint32_t& embedderNumber(orbis::COSInterface& object)
{
    return static_cast<Object&>(object).embedderNumber();
}

} // namespace velmara
