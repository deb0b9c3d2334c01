#pragma once

#include "lua/LuaApi.hpp"
#include "values/Conversion.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara::console {

/// The host array for the Lua value at `index`, which is of that Lua type.
///
/// - a number: a double where it is exactly one, else an int64; a boolean: logical
/// - a string: 1-by-n characters, its bytes read as UTF-8; the empty string 0-by-0
/// - an object: itself; a host array: a copy that shares its data; `missing`: a missing string
/// - nil and `null`: an empty 0-by-0 double
/// - a function: one that calls it, or that of the host which it stands for; see FunctionValue.hpp
/// - a table: see TableToHost.hpp
///
/// Throws an `Error` for anything else. Runs no code of the script.
ArrayPtr toHost(lua_State* L, int index, int type, Conversion& conversion);

inline ArrayPtr toHost(lua_State* L, int index, Conversion& conversion)
{
    return toHost(L, index, lua_type(L, index), conversion);
}

inline ArrayPtr toHost(lua_State* L, int index)
{
    Conversion conversion;
    return toHost(L, index, conversion);
}

} // namespace velmara::console
