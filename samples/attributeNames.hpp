#pragma once

#include "orbis/factory/descriptors/MethodAttributes.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"

#include <string>

namespace orbis::factory::samples {

/// The attributes that differ from the default, by the names of the functions that set them; "" for none.
std::string attributeNames(MethodAttributes attributes);
std::string attributeNames(PropertyAttributes attributes);

} // namespace orbis::factory::samples
