#pragma once

#include "orbis/factory/descriptors/MethodAttributes.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"

#include <string>

namespace orbis::factory::samples {

/// The attributes that differ from the default, in the words in which they are given; "" for none.
std::string attributeNames(MethodAttributes attributes);
std::string attributeNames(PropertyAttributes attributes);

} // namespace orbis::factory::samples
