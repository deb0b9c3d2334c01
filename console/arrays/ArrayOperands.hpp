#pragma once

#include "arrays/Shape.hpp"
#include "handles/ArrayStack.hpp"
#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

namespace velmara::console {

/// The two sides of an element-wise operation, numeric or logical arrays, and the shape of its result.
struct ArrayOperands {
    hvArray_tag const* first = nullptr;
    hvArray_tag const* second = nullptr;
    Shape shape;
};

/// Reads arguments 1 and 2, of which one is a host array:
///
/// - a host array, or a table that becomes one, of numbers or logicals; true and false
/// - a number, which takes the class of the other side: double beside logicals, and beside integers that it is none of
///
/// Rows, and columns, are as many on both sides, or one on one side, which is repeated. `frame` owns what is created.
/// Throws an `Error` for other values and shapes.
ArrayOperands checkOperands(lua_State* L, ArrayStack::Frame& frame);

/// Throws an `Error` unless the array is numeric or logical.
void requireNumeric(hvArray_tag const& array);

} // namespace velmara::console
