#pragma once

#include "LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

#include <string>
#include <string_view>

namespace velmara::console {

/// Tables may be nested this deep on their way to the host and back.
constexpr int deepestNesting = 200;

/// The host array for the Lua value at `index`.
///
/// - a number: a double where it is exactly one, else an int64; a boolean: logical
/// - a string: 1-by-n characters, its bytes read as UTF-8; the empty string 0-by-0
/// - an object, a host array: itself; nil and `null`: an empty 0-by-0 double
/// - a table: see TableToHost.hpp
///
/// Anything else is refused with an `Error`. Runs no code of the script.
ArrayPtr toHost(lua_State* L, int index, int depth = 0);

/// "a table", "a function", ...: what stands at `index`, for error texts.
std::string kindAt(lua_State* L, int index);

/// True for the integers that every double between zero and them is exact for.
constexpr bool isExactDouble(lua_Integer value)
{
    constexpr lua_Integer limit = lua_Integer{1} << 53;
    return -limit <= value && value <= limit;
}

} // namespace velmara::console
