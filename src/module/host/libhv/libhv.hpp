#pragma once

#include "libhv/hvArray.hpp"
#include "libkwfl/IUserException.hpp"

/// The host array functions. Every `hvArray*` result is new and belongs to the caller, who gives it back with
/// `hvDestroyArray` or hands it on. Functions that make an array throw `foundation::core::except::bad_alloc`
/// when there is no memory. An argument of the wrong class is refused with a "VELMARA:array:..." error.
namespace matrix::detail::noninlined::hv_array_api {

/// A 1-by-n character array of the text; an empty text or null gives 0-by-0. The text is UTF-8; what is ill-formed in
/// it becomes U+FFFD as in `fl::i18n::to_ustring`.
ORBIS_HOST_API hvArray* hvCreateString(char const* text);

/// The same of UTF-16, which is taken unit by unit, well-formed or not.
ORBIS_HOST_API hvArray* hvCreateString_UTF16(char16_t const* text);

/// A NUL-terminated UTF-8 copy of a character array's text in column order, or null when `array` is null or no
/// character array. Lone surrogates become U+FFFD as in `fl::i18n::to_string`. Free it with `hvFreeEx`.
ORBIS_HOST_API char* hvArrayToString(hvArray_tag const* array);

/// The same; free it with `hvFree`.
ORBIS_HOST_API char* hvArray2String(hvArray_tag const* array);

/// The same in UTF-16, unit by unit, well-formed or not; free it with `hvFreeEx`.
ORBIS_HOST_API char16_t* hvArrayToString_UTF16(hvArray_tag const* array);

/// Free such texts; null is allowed.
ORBIS_HOST_API void hvFree(void* text);
ORBIS_HOST_API void hvFreeEx(void* text); ///< likewise

/// An m-by-n cell array of null cells.
ORBIS_HOST_API hvArray* hvCreateCellMatrix(std::size_t m, std::size_t n);

/// Stores `value` (null allowed) at a zero-based linear index; the cell array owns it from then on, and what
/// was there before is destroyed. When the call throws, `value` stays the caller's.
ORBIS_HOST_API void hvSetCell(hvArray_tag* cells, std::size_t index, hvArray_tag* value);

/// An independent copy of the array and of every array in it; host objects are shared, not copied.
ORBIS_HOST_API hvArray* hvCreateDeepCopy(hvArray_tag const* array);

/// A copy that shares its data until one side writes. The second form makes it free of the list of the current
/// call's temporaries, as `hvSetArrayScope(copy, 0)` does.
ORBIS_HOST_API hvArray* hvCreateSharedDataCopy(hvArray_tag const* array);
ORBIS_HOST_API hvArray* hvCreateSharedCopyNotOnArrayList(hvArray_tag const* array); ///< likewise

/// With scope 1 makes the array a temporary of the current call, with 0 none.
ORBIS_HOST_API void hvSetArrayScope(hvArray_tag* array, hvVariableScope scope);

/// True when the array is of that class ("double", "cell", "string", a published class, ...) or, for objects,
/// of a subclass of it. False for null.
ORBIS_HOST_API bool hvIsA(hvArray_tag const* array, char const* className);

/// Gives one reference back; the last one frees the array. Null is allowed.
ORBIS_HOST_API void hvDestroyArray(hvArray_tag* array);

/// Destroys arrays for smart pointers.
struct ORBIS_HOST_API hvDestroy_deleter {
    void operator()(hvArray_tag const* array) const; ///< null is allowed
};

/// Raises a copy of the exception into the host's error channel: it ends the running script call.
[[noreturn]] ORBIS_HOST_API void do_legacy_hv_error(foundation::core::except::IUserException const& error);

} // namespace matrix::detail::noninlined::hv_array_api

using namespace matrix::detail::noninlined::hv_array_api;
