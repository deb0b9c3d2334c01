#pragma once

#include "lua/ChangeWatch.hpp"

#include "velmara/Error.hpp"

#include "libkwfl/IMsgIDException.hpp"

#include <exception>
#include <string>
#include <string_view>

namespace velmara::console {

/// What a script catches for a failure in the host or in the console: a table with `identifier`, `text` and `where`
/// ("FILE:LINE" of the call), which prints as "identifier: text". The fields of an error are fields of its table, and
/// so is its `cause`, a table like it.
void pushError(lua_State* L, std::string_view identifier, std::string_view text);
void pushError(lua_State* L, Error const& error);

/// Has `convert` called for the value of each field of an error: it is given the array as a light userdata, and returns
/// the value.
void convertFieldsWith(lua_State* L, lua_CFunction convert);

/// True when the value at `index` is a table with the texts `identifier` and `text`.
bool isError(lua_State* L, int index);

/// The identifier of an error value that has none.
inline constexpr char const* scriptErrorIdentifier = "VELMARA:script:error";

/// The identifier of the error that Ctrl-C raises.
inline constexpr char const* interruptionIdentifier = "VELMARA:console:interrupted";

/// The text of any error value at `index`; a fixed text when its `__tostring` fails.
std::string errorText(lua_State* L, int index);

/// Throws the console's own `velmara::Error` "VELMARA:console:KEY".
[[noreturn]] void fail(std::string_view key, std::string const& text);

/// Pushes the error value for what native code has thrown.
void pushCaught(lua_State* L, std::exception const& error);
void pushCaught(lua_State* L, foundation::core::except::IMsgIDException const& error);

/// What a function returns that has pushed an error value for its caller to raise.
inline constexpr int raised = -1;

/// `Body` as a function for Lua: no C++ exception leaves it. Lua's own errors pass through untouched.
template <lua_CFunction Body>
int guarded(lua_State* L)
{
    int results = raised;
    try {
        results = Body(L);
    } catch (std::exception const& error) {
        pushCaught(L, error);
    } catch (foundation::core::except::IMsgIDException const& error) {
        pushCaught(L, error);
    } // no `catch (...)`: Lua's own errors must reach Lua
    ChangeWatch::check(L);
    return results == raised ? lua_error(L) : results;
}

} // namespace velmara::console
