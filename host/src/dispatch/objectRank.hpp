#pragma once

#include "arrays/Array.hpp"
#include "types/ConversionRank.hpp"
#include "types/TypeReference.hpp"

namespace velmara {

/// How well an array fits a class's type where its first object counts, as in what a method is called on: by that
/// object (or by its own class where that is null or missing), and an empty 0-by-0 array of doubles as the null object.
/// An enumeration has no null object, and takes an array of one object only.
ConversionRank firstObjectRank(Name className, Array const& input);

/// The same for an input, where several objects are too many.
ConversionRank objectRank(Name className, Array const& input);

/// How well objects of a class fit that class or an ancestor.
ConversionRank classRank(Name className, Name ancestor);

/// How well an array fits the vector type of a class: an array of objects that are all of the class.
ConversionRank objectVectorRank(Name element, Array const& input);

} // namespace velmara
