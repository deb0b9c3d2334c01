#pragma once

#include "arrays/Array.hpp"
#include "types/ConversionRank.hpp"
#include "types/TypeReference.hpp"

namespace velmara {

/// How well an array fits a type, other than a scalar one, whose value it is as it stands; `notConvertible` for one
/// that may fit after a conversion. Runs no native code. Objects must be usable.
ConversionRank directRank(TypeReference const& type, Array const& input);

} // namespace velmara
