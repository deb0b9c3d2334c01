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

/// An array of that class; `key` is that of the error for others.
template <class Tag>
auto& requireArrayOf(Tag* array, hvClassID classID, char const* key)
{
    auto& elements = requireArray(array);
    if (elements.classID() != classID) [[unlikely]]
        throwWrongClass(elements, key);
    return elements;
}

/// The same array, which must have an element of that index.
template <class Elements>
Elements& requireIndex(Elements& array, std::size_t index)
{
    if (index >= array.size()) [[unlikely]]
        throwIndexOutside(array, index);
    return array;
}

template <class Tag>
auto& requireStrings(Tag* array)
{
    return requireArrayOf(array, hvSTRING_CLASS, "notString");
}

template <class Tag>
auto& requireObjects(Tag* array)
{
    return requireArrayOf(array, hvOBJECT_CLASS, "notObject");
}

template <class Tag>
auto& requireCell(Tag* array, std::size_t index)
{
    return requireIndex(requireArrayOf(array, hvCELL_CLASS, "notCell"), index);
}

template <class Tag>
auto& requireString(Tag* array, std::size_t index)
{
    return requireIndex(requireStrings(array), index);
}

template <class Tag>
auto& requireObject(Tag* array, std::size_t index)
{
    return requireIndex(requireObjects(array), index);
}

} // namespace velmara
