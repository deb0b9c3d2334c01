#pragma once

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <string>

namespace velmara::console {

struct Shape {
    std::size_t rows = 0;
    std::size_t columns = 0;

    std::size_t count() const { return rows * columns; }
    bool isVector() const { return rows == 1 || columns == 1; }

    /// Whether there is room for just so many elements. The sizes may be any.
    bool holds(std::size_t elements) const
    {
        return columns == 0 ? elements == 0 : elements % columns == 0 && elements / columns == rows;
    }

    bool operator==(Shape const&) const = default;
};

inline Shape shapeOf(hvArray_tag const& array)
{
    return {array.get_dimensions()[0], array.get_dimensions()[1]};
}

/// "3x4"
inline std::string shapeText(Shape shape)
{
    return std::to_string(shape.rows) + 'x' + std::to_string(shape.columns);
}

inline std::string shapeText(hvArray_tag const& array)
{
    return shapeText(shapeOf(array));
}

/// The index of the element that is repeated at `index` of an expanded shape.
inline std::size_t unexpandedIndex(Shape shape, Shape expanded, std::size_t index)
{
    std::size_t const row = shape.rows == 1 ? 0 : index % expanded.rows;
    std::size_t const column = shape.columns == 1 ? 0 : index / expanded.rows;
    return column * shape.rows + row;
}

/// The place of an element for error texts: "5", or "(2, 3)" in a matrix.
inline std::string positionText(Shape shape, std::size_t index)
{
    if (shape.isVector())
        return std::to_string(index + 1);
    return '(' + std::to_string(index % shape.rows + 1) + ", " + std::to_string(index / shape.rows + 1) + ')';
}

} // namespace velmara::console
