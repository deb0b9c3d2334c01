#pragma once

#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// The host array for the table at the absolute `index`, which must be a sequence, keys 1 to n and no others, or have
/// texts for all keys. Ignores its metatable.
///
/// - texts for keys: a cell array with a row for each, key and value, in the order of the keys
/// - numbers: a row of doubles, or of int64 when they are integers that doubles are not exact for
/// - booleans: a row of logicals
/// - objects with a class in common: a row of objects
/// - sequences of numbers (of booleans) of one length: a matrix, one sequence a row
/// - anything else: a row of cells, `null` for an empty one
/// - nothing: an empty 0-by-0 double
ArrayPtr tableToHost(lua_State* L, int index, Conversion& conversion);

} // namespace velmara::console
