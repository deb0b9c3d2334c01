#pragma once

#include "lua/LuaApi.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace velmara::console {

/// What the elements of a sequence have in common.
struct Elements {
    enum Kind : unsigned { Numbers = 1, Integers = 2, ExactDoubles = 4, Booleans = 8, Objects = 16, Tables = 32 };

    std::size_t count = 0;
    unsigned kinds = ~0U; ///< each `Kind` that all of them are

    bool are(unsigned kind) const { return (kinds & kind) != 0; }
    bool areScalars() const { return count > 0 && are(Numbers | Booleans); }
};

/// The keys of the table at the absolute `table`, in their order as bytes, if all of them are strings; none for others.
std::vector<std::string> textKeysOf(lua_State* L, int table);

/// Visits all pairs of the table at the absolute `table`, ignoring its metatable. Throws an `Error` when it is no
/// sequence: when a key is not a positive integer, or one is missing.
///
/// The elements are also added to `numbers` (null allowed): all of them if they are `ExactDoubles` and Lua has them in
/// their order, which it mostly does; else fewer.
Elements elementsOf(lua_State* L, int table, std::vector<double>* numbers = nullptr);

} // namespace velmara::console
