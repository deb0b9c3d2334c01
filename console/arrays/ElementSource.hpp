#pragma once

#include "arrays/Shape.hpp"
#include "handles/ArrayStack.hpp"
#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>

namespace velmara::console {

/// The values for the elements of a new array, all in one value of the script. See ArrayConstruction.hpp.
class ElementSource {
public:
    /// Reads the value at the absolute `index`, which stays on the stack, for an array of that class. `frame` owns the
    /// arrays that the source creates. Throws an `Error` for tables that are no rows of one length.
    ElementSource(lua_State* L, int index, hvClassID classID, ArrayStack::Frame& frame);

    Shape shape() const { return shape_; }
    std::size_t count() const { return shape_.count(); }

    /// True for one value outside a table: it can fill an array of any size.
    bool isSingle() const { return kind_ == Kind::Single; }

    /// The host array that has the values; null when they come otherwise.
    hvArray_tag const* array() const { return array_; }

    /// Pushes the element at a zero-based linear index.
    void push(std::size_t position) const;

private:
    enum class Kind { Empty, Single, Sequence, Rows, Array };

    void readArray(hvArray_tag const* array);
    void readTable(hvClassID classID, ArrayStack::Frame& frame);
    void readRows(std::size_t count);
    bool readTexts(std::size_t count, ArrayStack::Frame& frame);

    lua_State* L_;
    int index_;
    Kind kind_ = Kind::Empty;
    Shape shape_;
    hvArray_tag const* array_ = nullptr;
};

} // namespace velmara::console
