#pragma once

#include "libhv/hvArray.hpp"

#include <cstdint>

namespace velmara {

template <class T>
inline constexpr char const* nativeTypeName = nullptr;
template <>
inline constexpr char const* nativeTypeName<bool> = "bool";
template <>
inline constexpr char const* nativeTypeName<double> = "double";
template <>
inline constexpr char const* nativeTypeName<float> = "float";
template <>
inline constexpr char const* nativeTypeName<std::int8_t> = "std::int8_t";
template <>
inline constexpr char const* nativeTypeName<std::uint8_t> = "std::uint8_t";
template <>
inline constexpr char const* nativeTypeName<std::int16_t> = "std::int16_t";
template <>
inline constexpr char const* nativeTypeName<std::uint16_t> = "std::uint16_t";
template <>
inline constexpr char const* nativeTypeName<std::int32_t> = "std::int32_t";
template <>
inline constexpr char const* nativeTypeName<std::uint32_t> = "std::uint32_t";
template <>
inline constexpr char const* nativeTypeName<std::int64_t> = "std::int64_t";
template <>
inline constexpr char const* nativeTypeName<std::uint64_t> = "std::uint64_t";

/// True for the classes of numbers. A logical is no number.
constexpr bool isNumeric(hvClassID classID)
{
    return classID >= hvDOUBLE_CLASS && classID <= hvUINT64_CLASS;
}

/// Calls `visit` with a zero of the native type of a numeric or logical class. `classID` must be one.
template <class Visit>
constexpr auto withScalarType(hvClassID classID, Visit visit)
{
    switch (classID) {
    case hvLOGICAL_CLASS:
        return visit(bool());
    case hvSINGLE_CLASS:
        return visit(float());
    case hvINT8_CLASS:
        return visit(std::int8_t());
    case hvUINT8_CLASS:
        return visit(std::uint8_t());
    case hvINT16_CLASS:
        return visit(std::int16_t());
    case hvUINT16_CLASS:
        return visit(std::uint16_t());
    case hvINT32_CLASS:
        return visit(std::int32_t());
    case hvUINT32_CLASS:
        return visit(std::uint32_t());
    case hvINT64_CLASS:
        return visit(std::int64_t());
    case hvUINT64_CLASS:
        return visit(std::uint64_t());
    default:
        return visit(double());
    }
}

} // namespace velmara
