#pragma once

#include <cstdint>

namespace velmara {

/// How well an input fits a data type: not at all, as everything fits "any", by a conversion, as an object of a
/// subclass (the nearer, the better), or by its very class. Larger is better. One element fits a type of many one step
/// worse than a type of one.
using ConversionRank = std::uint8_t;

inline constexpr ConversionRank notConvertible = 0;
inline constexpr ConversionRank anyRank = 1;
inline constexpr ConversionRank convertedRank = 3;
inline constexpr ConversionRank exactRank = 255;

/// `distance` is how far the class is away in the object's hierarchy, 0 for the object's own class.
constexpr ConversionRank rankOfDistance(int distance)
{
    constexpr int farthest = exactRank - convertedRank - 1;
    return static_cast<ConversionRank>(exactRank - (distance < farthest ? distance : farthest));
}

} // namespace velmara
