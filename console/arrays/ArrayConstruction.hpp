#pragma once

#include "arrays/ArrayClass.hpp"
#include "arrays/ElementSource.hpp"
#include "lua/LuaApi.hpp"

namespace velmara::console {

/// `array(class, values, rows, columns)` as a function for Lua, to be guarded: pushes a new host array of exactly that
/// class.
///
/// - values: one value, a sequence (a row), a sequence of sequences of one length (a matrix), a host array (its size),
///   nothing (0-by-0); for "char" a text, or a sequence of texts of one length, each a row; for "cell" a sequence is
///   always a row, of any values
/// - with rows and columns: the values in column order, as many as there is room for; or one value for all elements
///
/// Without a class, a table or array has the one that it has for the host. Every value must fit the class exactly. See
/// ArrayElement.hpp.
int createArray(lua_State* L);

/// A new array of that class and shape with the values of a source: as many, or one for all elements. `frame` owns it.
/// May run finalizers of the script.
hvArray_tag* createFrom(lua_State* L, ArrayClass const& arrayClass, ElementSource const& source, Shape shape,
                        ArrayStack::Frame& frame);

} // namespace velmara::console
