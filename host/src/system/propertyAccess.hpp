#pragma once

#include "velmara/ArrayPtr.hpp"

#include <string_view>

namespace velmara {

class HvmState;

/// Reading and writing properties of an object (the first one of the array), and static ones of a class. Each
/// throws when there is no such property and when it is not open to be read or written from outside.
ArrayPtr getProperty(HvmState& machine, hvArray_tag* array, std::string_view property);
void setProperty(HvmState& machine, hvArray_tag* array, std::string_view property, hvArray_tag* value);
ArrayPtr getStaticProperty(HvmState& machine, std::string_view className, std::string_view property);
void setStaticProperty(HvmState& machine, std::string_view className, std::string_view property, hvArray_tag* value);

} // namespace velmara
