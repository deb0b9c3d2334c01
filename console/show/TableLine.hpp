#pragma once

#include "lua/LuaApi.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace velmara::console {

/// The keys of a table beside those of its sequence.
struct TableKeys {
    std::vector<std::string> texts; ///< sorted
    bool hasOthers = false;         ///< also keys that are neither texts nor of the sequence; or very many
};

/// Those of the table at the absolute `table`, without its metatable.
TableKeys keysOf(lua_State* L, int table);

/// A text as a key of a table's constructor: "name" or "["a b"]".
std::string keyText(std::string const& key);

/// The table at `index` as a script would write it, in at most `width` columns; empty when that is longer, nested deep,
/// or the table holds other values than texts, numbers, booleans and tables. Ignores metatables.
std::string tableLine(lua_State* L, int index, std::size_t width);

} // namespace velmara::console
