#pragma once

#include "arrays/Shape.hpp"
#include "handles/ArrayStack.hpp"
#include "lua/LuaApi.hpp"

#include <cstddef>
#include <memory>

namespace velmara::console {

/// Which of a number of elements, rows or columns a script means:
///
/// - a whole number: that one; nil: all of them
/// - an array or table of whole numbers: those, in that order, each as often as it is there
/// - an array or table of logicals, one for each: those that are true
class ArrayIndex {
public:
    /// Of what is indexed: "row", "column" or "element" of an array of that shape.
    struct Range {
        char const* what;
        std::size_t size;
        Shape array;
    };

    /// Reads the value at `index`. Throws an `Error` that tells the shape when something lies outside it.
    ArrayIndex(lua_State* L, int index, Range const& range, ArrayStack::Frame& frame);

    /// True for a whole number alone.
    bool isNumber() const { return isNumber_; }

    /// The shape in which the positions were given; all are a column.
    Shape shape() const { return shape_; }
    std::size_t count() const { return shape_.count(); }

    /// The zero-based position that is the `i`-th.
    std::size_t operator[](std::size_t i) const { return isAll_ ? i : positions_[i]; }

private:
    void readNumbers(hvArray_tag const& numbers, Range const& range);
    void readMask(hvArray_tag const& mask, Range const& range);

    bool isNumber_ = false;
    bool isAll_ = false;
    Shape shape_;
    std::unique_ptr<std::size_t[]> positions_;
};

} // namespace velmara::console
