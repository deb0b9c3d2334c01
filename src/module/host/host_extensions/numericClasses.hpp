#pragma once

#include "libhv/hvArray.hpp"
#include "orbis/COSValue.hpp"

#include <cstddef>
#include <cstdint>

namespace orbis::host_extensions {

/// A class of numbers, or the logical one.
struct NumericClass {
    hvClassID classID;      ///< as in its arrays
    std::size_t size;       ///< of an element, in bytes
    char const* name;       ///< of the class
    char const* scalarType; ///< the data type of one element
    char const* vectorType; ///< the data type of arrays of any size
    char const* nativeType; ///< the type of its elements in C++
};

/// All of them, in the order of `hvClassID`.
inline constexpr NumericClass numericClasses[] = {
    {hvLOGICAL_CLASS, sizeof(bool), "logical", "logical scalar", "logical vector", "bool"},
    {hvDOUBLE_CLASS, sizeof(double), "double", "double scalar", "double vector", "double"},
    {hvSINGLE_CLASS, sizeof(float), "single", "single scalar", "single vector", "float"},
    {hvINT8_CLASS, 1, "int8", "int8 scalar", "int8 vector", "std::int8_t"},
    {hvUINT8_CLASS, 1, "uint8", "uint8 scalar", "uint8 vector", "std::uint8_t"},
    {hvINT16_CLASS, 2, "int16", "int16 scalar", "int16 vector", "std::int16_t"},
    {hvUINT16_CLASS, 2, "uint16", "uint16 scalar", "uint16 vector", "std::uint16_t"},
    {hvINT32_CLASS, 4, "int32", "int32 scalar", "int32 vector", "std::int32_t"},
    {hvUINT32_CLASS, 4, "uint32", "uint32 scalar", "uint32 vector", "std::uint32_t"},
    {hvINT64_CLASS, 8, "int64", "int64 scalar", "int64 vector", "std::int64_t"},
    {hvUINT64_CLASS, 8, "uint64", "uint64 scalar", "uint64 vector", "std::uint64_t"},
};

/// True for the classes of numbers. A logical is no number.
constexpr bool isNumeric(hvClassID classID)
{
    return classID >= hvDOUBLE_CLASS && classID <= hvUINT64_CLASS;
}

/// The record of a class; null for those that are neither numeric nor logical.
constexpr NumericClass const* findNumericClass(hvClassID classID)
{
    if (classID == hvLOGICAL_CLASS)
        return &numericClasses[0];
    return isNumeric(classID) ? &numericClasses[1 + classID - hvDOUBLE_CLASS] : nullptr;
}

/// The record of the class of a native type.
template <COSScalar T>
inline constexpr NumericClass const& numericClassOf = *findNumericClass(COSValue::classOf<T>());

/// Calls `visit` with a zero of the native type of a numeric or logical class, whose limits are
/// `std::numeric_limits`', and returns its result. Other classes are taken for double.
template <class Visit>
constexpr auto visitNumericClass(hvClassID classID, Visit&& visit)
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

static_assert([] {
    bool agree = true;
    for (NumericClass const& record : numericClasses)
        agree = agree && visitNumericClass(record.classID, [&]<class T>(T) {
                    return &numericClassOf<T> == &record && sizeof(T) == record.size;
                });
    return agree;
}());

} // namespace orbis::host_extensions
