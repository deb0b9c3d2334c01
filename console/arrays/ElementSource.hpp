#pragma once

#include "handles/ArrayStack.hpp"
#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <string>

namespace velmara::console {

struct Shape {
    std::size_t rows = 0;
    std::size_t columns = 0;
};

/// The elements that a script gives for a new array, in one value. See ArrayConstruction.hpp.
class ElementSource {
public:
    /// Looks at the value at the absolute `index`, which stays on the stack, for an array of that class. Throws an
    /// `Error` for tables that are no rows of one length. `frame` keeps what the source holds.
    ElementSource(lua_State* L, int index, hvClassID classID, ArrayStack::Frame& frame);

    Shape shape() const { return shape_; }
    std::size_t count() const { return shape_.rows * shape_.columns; }

    /// True when there is one value, not in a table: it can fill an array of any size.
    bool isSingle() const { return kind_ == Kind::Single; }

    /// The host array that was given, null when the values are given otherwise.
    hvArray_tag const* array() const { return array_; }

    /// Pushes the element at a zero-based linear index.
    void push(std::size_t position) const;

private:
    enum class Kind { Nothing, Single, Sequence, Rows, Array };

    void takeArray(hvArray_tag const* array);
    void takeTable(hvClassID classID, ArrayStack::Frame& frame);
    void takeRows(std::size_t count);
    bool takeTexts(std::size_t count, ArrayStack::Frame& frame);

    lua_State* L_;
    int index_;
    Kind kind_ = Kind::Nothing;
    Shape shape_;
    hvArray_tag const* array_ = nullptr;
};

} // namespace velmara::console
