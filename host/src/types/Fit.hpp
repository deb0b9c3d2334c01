#pragma once

#include <cstdint>

namespace velmara {

/// How well an input fits a data type: not at all, as everything fits "any", by a conversion, as an object of a
/// subclass (the nearer, the better), or by its very class. Larger is better. One element alone fits a type of many
/// one step worse than a type of one, by conversion as by class.
using Fit = std::uint8_t;

inline constexpr Fit noFit = 0;
inline constexpr Fit anyFit = 1;
inline constexpr Fit convertedFit = 3;
inline constexpr Fit exactFit = 255;

/// `distance` is how far the class is away in the object's hierarchy, 0 for the object's own class.
constexpr Fit fitOfDistance(int distance)
{
    constexpr int farthest = exactFit - convertedFit - 1;
    return static_cast<Fit>(exactFit - (distance < farthest ? distance : farthest));
}

} // namespace velmara
