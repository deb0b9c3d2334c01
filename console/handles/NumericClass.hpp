#pragma once

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <cstdint>

namespace velmara::console {

/// Calls `visit` with a null pointer to the native type of a numeric or the logical class; does nothing for others.
template <class Visit>
void visitNumericClass(hvClassID classID, Visit&& visit)
{
    switch (classID) {
    case hvLOGICAL_CLASS:
        return visit(static_cast<bool*>(nullptr));
    case hvDOUBLE_CLASS:
        return visit(static_cast<double*>(nullptr));
    case hvSINGLE_CLASS:
        return visit(static_cast<float*>(nullptr));
    case hvINT8_CLASS:
        return visit(static_cast<std::int8_t*>(nullptr));
    case hvUINT8_CLASS:
        return visit(static_cast<std::uint8_t*>(nullptr));
    case hvINT16_CLASS:
        return visit(static_cast<std::int16_t*>(nullptr));
    case hvUINT16_CLASS:
        return visit(static_cast<std::uint16_t*>(nullptr));
    case hvINT32_CLASS:
        return visit(static_cast<std::int32_t*>(nullptr));
    case hvUINT32_CLASS:
        return visit(static_cast<std::uint32_t*>(nullptr));
    case hvINT64_CLASS:
        return visit(static_cast<std::int64_t*>(nullptr));
    case hvUINT64_CLASS:
        return visit(static_cast<std::uint64_t*>(nullptr));
    default:
        return;
    }
}

/// Bytes an element of a numeric or the logical class; 0 for other classes.
inline std::size_t elementSize(hvClassID classID)
{
    std::size_t size = 0;
    visitNumericClass(classID, [&]<class T>(T*) { size = sizeof(T); });
    return size;
}

/// Approximate memory of one element of any class, with what it owns.
inline std::size_t memoryOfElement(hvClassID classID)
{
    switch (classID) {
    case hvCHAR_CLASS:
        return sizeof(char16_t);
    case hvCELL_CLASS:
    case hvSTRING_CLASS:
        return 96;
    default:
        return elementSize(classID) != 0 ? elementSize(classID) : sizeof(void*);
    }
}

} // namespace velmara::console
