#pragma once

#include "system/Fit.hpp"
#include "system/TypeReference.hpp"
#include "values/Array.hpp"

namespace velmara {

/// How well an array fits a class's type: an array of objects by its first object (or by its own class where that
/// is null or missing), and an empty 0-by-0 array of doubles as the null object. An enumeration has no null object, and
/// takes an array of one object only.
Fit objectFit(Name className, Array const& input);

/// How well an array fits the vector type of a class: an array of objects that are all of the class.
Fit objectVectorFit(Name element, Array const& input);

} // namespace velmara
