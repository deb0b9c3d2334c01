#pragma once

#include "arrays/Shape.hpp"
#include "handles/HostArray.hpp"

#include "host_extensions/host_extensions.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace velmara::console {

/// Copies one element of an array of strings, cells or objects to another of its class. Exact: keeps ill-formed text
/// and the class of a cell's array. Needs the scope of the virtual machine.
void copyOwnedElement(hvArray_tag const* source, std::size_t from, hvArray_tag* target, std::size_t to);

/// Calls `walk(copy)`, which calls `copy(from, to)` for each element of `source` that is to be copied to `target`, an
/// array of its class: both by their zero-based linear index. The scope of the virtual machine is the caller's.
template <class Walk>
void copyElements(hvArray_tag const* source, hvArray_tag* target, Walk const& walk)
{
    auto const* const data = static_cast<char const*>(orbis::host_extensions::getData(source));
    if (!data)
        return walk([&](std::size_t from, std::size_t to) { copyOwnedElement(source, from, target, to); });
    auto* const out = static_cast<char*>(orbis::host_extensions::getWritableData(target));
    auto const copyPlain = [&]<class Element>(Element) {
        walk([&](std::size_t from, std::size_t to) {
            std::memcpy(out + to * sizeof(Element), data + from * sizeof(Element), sizeof(Element));
        });
    };
    switch (memoryOfElement(source->_get_class_id_non_trivial())) {
    case 1:
        return copyPlain(std::uint8_t());
    case 2:
        return copyPlain(std::uint16_t());
    case 4:
        return copyPlain(std::uint32_t());
    default:
        return copyPlain(std::uint64_t());
    }
}

/// Copies all elements, in column order, to an array of as many; the shapes may differ.
inline void copyAllElements(hvArray_tag const* source, hvArray_tag* target)
{
    copyElements(source, target, [count = source->get_number_of_elements()](auto const& copy) {
        for (std::size_t i = 0; i < count; ++i)
            copy(i, i);
    });
}

} // namespace velmara::console
