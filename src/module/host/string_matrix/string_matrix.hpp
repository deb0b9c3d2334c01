#pragma once

#include "orbis_host_export.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>

/// String arrays of the host.
namespace Tarnwick {

/// The view of a host string array: one pointer an element, null where the element is missing.
class ORBIS_HOST_API StringArray {
public:
    virtual std::size_t getNumberOfElements() const = 0; ///< rows times columns
    virtual bool isMissing(std::size_t index) const = 0; ///< of the element at a zero-based linear index, as below

    /// The element's NUL-terminated UTF-16 text, or null when it is missing. The text belongs to the array.
    virtual char16_t const* getText(std::size_t index) const = 0;

    /// The element's length in code units, 0 when it is missing.
    virtual std::size_t getLength(std::size_t index) const = 0;

    /// The element's text. Throws "VELMARA:string:MissingNotSupported" when it is missing.
    virtual char16_t const* getElement(std::size_t index) const = 0;

protected:
    ~StringArray() = default;
};

/// Finds the string arrays among arrays.
class ORBIS_HOST_API String {
public:
    /// True when `array` is a host string array; false for null.
    static bool isString(hvArray_tag const* array);

    /// The string-array view of `array`, valid while the array lives. Throws when it is no string array.
    static StringArray const& getString(hvArray_tag const* array);
};

} // namespace Tarnwick
