#pragma once

#include "arrays/Array.hpp"

namespace velmara {

[[noreturn]] void refuseNullArray();
[[noreturn]] void refuseIndex(Array const& array, std::size_t index);
[[noreturn]] void refuseClass(Array const& array, char const* key);

/// What the host's array functions ask of their arguments before they touch them; "VELMARA:array:..." errors.
template <class Tag>
auto& requireArray(Tag* array)
{
    if (!array) [[unlikely]]
        refuseNullArray();
    return *Array::of(array);
}

template <class Tag>
auto& requireCell(Tag* array, std::size_t index)
{
    auto& cells = requireArray(array);
    if (cells.classID() != hvCELL_CLASS) [[unlikely]]
        refuseClass(cells, "notCell");
    if (index >= cells.size()) [[unlikely]]
        refuseIndex(cells, index);
    return cells;
}

template <class Tag>
auto& requireStrings(Tag* array)
{
    auto& strings = requireArray(array);
    if (strings.classID() != hvSTRING_CLASS) [[unlikely]]
        refuseClass(strings, "notString");
    return strings;
}

template <class Tag>
auto& requireString(Tag* array, std::size_t index)
{
    auto& strings = requireStrings(array);
    if (index >= strings.size()) [[unlikely]]
        refuseIndex(strings, index);
    return strings;
}

template <class Tag>
auto& requireObjects(Tag* array)
{
    auto& objects = requireArray(array);
    if (objects.classID() != hvOBJECT_CLASS) [[unlikely]]
        refuseClass(objects, "notObject");
    return objects;
}

template <class Tag>
auto& requireObject(Tag* array, std::size_t index)
{
    auto& objects = requireObjects(array);
    if (index >= objects.size()) [[unlikely]]
        refuseIndex(objects, index);
    return objects;
}

} // namespace velmara
