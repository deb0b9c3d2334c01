#pragma once

#include "members/Property.hpp"

#include "libhv/hvArray.hpp"

#include <string_view>

/// The errors "VELMARA:property:..." of reading and writing properties.
namespace velmara {

/// "unknown"
[[noreturn]] void refuseUnknown(Class const& cls, std::string_view property);

/// "noObject"
[[noreturn]] void refuseMissingObject(Property const& property);

/// "abstract", "writeOnly" or "getAccess"
[[noreturn]] void refuseReading(Property const& property);

/// "abstract", "readOnly" or "setAccess"
[[noreturn]] void refuseWriting(Property const& property);

/// "value"
[[noreturn]] void refuseValue(Property const& property, hvArray_tag* value);

} // namespace velmara
