#pragma once

#include "arrays/Array.hpp"
#include "types/ConversionRank.hpp"

namespace velmara {

/// How well an array fits the type of a class where its first object counts, as that which a method is called on: by
/// that object, or by the array's class where that is null or missing; "[]" is the null object. An enumeration has no
/// null object, and takes an array of one object only.
ConversionRank firstObjectRank(Name className, Array const& input);

/// The same for an input, where several objects are too many.
ConversionRank objectRank(Name className, Array const& input);

/// How well objects of a class fit that class or an ancestor.
ConversionRank classRank(Name className, Name ancestor);

/// How well an array fits the vector type of a class: an array of objects that are all of the class.
ConversionRank objectVectorRank(Name element, Array const& input);

} // namespace velmara
