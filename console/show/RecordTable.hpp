#pragma once

#include "lua/LuaApi.hpp"
#include "text/AlignedTable.hpp"

#include <cstddef>

namespace velmara::console {

/// Whether the table at the absolute `table` is a sequence of several tables that have texts for all keys, as far as
/// the first ones tell.
bool isOfRecords(lua_State* L, int table);

/// The first `count` of them: a row each, with a column for each field that is not empty in all of them; those
/// that are the same in all come last.
AlignedTable recordTable(lua_State* L, int table, std::size_t count);

} // namespace velmara::console
