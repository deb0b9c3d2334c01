#pragma once

#include "arrays/Array.hpp"

namespace velmara {

[[noreturn]] void throwNullArray();
[[noreturn]] void throwIndexOutside(Array const& array, std::size_t index);
[[noreturn]] void throwWrongClass(Array const& array, char const* key);

/// The arrays that the host's array functions need as their arguments; throw "VELMARA:array:..." for others.
template <class Tag>
auto& requireArray(Tag* array)
{
    if (!array) [[unlikely]]
        throwNullArray();
    return *Array::of(array);
}

template <class Tag>
auto& requireCell(Tag* array, std::size_t index)
{
    auto& cells = requireArray(array);
    if (cells.classID() != hvCELL_CLASS) [[unlikely]]
        throwWrongClass(cells, "notCell");
    if (index >= cells.size()) [[unlikely]]
        throwIndexOutside(cells, index);
    return cells;
}

template <class Tag>
auto& requireStrings(Tag* array)
{
    auto& strings = requireArray(array);
    if (strings.classID() != hvSTRING_CLASS) [[unlikely]]
        throwWrongClass(strings, "notString");
    return strings;
}

template <class Tag>
auto& requireString(Tag* array, std::size_t index)
{
    auto& strings = requireStrings(array);
    if (index >= strings.size()) [[unlikely]]
        throwIndexOutside(strings, index);
    return strings;
}

template <class Tag>
auto& requireObjects(Tag* array)
{
    auto& objects = requireArray(array);
    if (objects.classID() != hvOBJECT_CLASS) [[unlikely]]
        throwWrongClass(objects, "notObject");
    return objects;
}

template <class Tag>
auto& requireObject(Tag* array, std::size_t index)
{
    auto& objects = requireObjects(array);
    if (index >= objects.size()) [[unlikely]]
        throwIndexOutside(objects, index);
    return objects;
}

} // namespace velmara
