#pragma once

#include "lua/LuaApi.hpp"

#include <cstddef>

namespace velmara::console {

/// What the elements of a sequence have in common.
struct Elements {
    std::size_t count = 0;
    bool areNumbers = true;
    bool areIntegers = true;
    bool areExactDoubles = true;
    bool areBooleans = true;
    bool areObjects = true;
    bool areTables = true;

    bool areScalars() const { return count > 0 && (areNumbers || areBooleans); }
};

/// Visits all pairs of the table at the absolute `table`, ignoring its metatable. Throws an `Error` when it is no
/// sequence: when a key is not a positive integer, or one is missing.
Elements elementsOf(lua_State* L, int table);

} // namespace velmara::console
