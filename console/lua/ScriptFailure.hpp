#pragma once

#include "lua/LuaApi.hpp"
#include "lua/ScriptFrames.hpp"

#include "velmara/Error.hpp"

#include <vector>

namespace velmara::console {

/// An error of a script's function that was called by native code: carries the error through that, to the script that
/// called the native code. The Lua state keeps the value of the latest one.
class ScriptFailure final : public Error {
public:
    ScriptFailure(Error const& error, lua_State const* state, lua_Integer number)
        : Error(error),
          state_(state),
          number_(number)
    {
    }

private:
    friend void pushFailure(lua_State* L, ScriptFailure const& failure);

    void const* state_; ///< main thread of the Lua state, never dereferenced
    lua_Integer number_;
};

/// How many frames are recorded of a failure.
inline constexpr std::size_t maxFailureFrames = 64;

/// The message handler of such a function: records the error value and the script's running functions.
int recordFailure(lua_State* L);

/// Records the error value at `index`, which the script has, with the functions that were running.
void recordFailure(lua_State* L, int index, std::vector<ScriptFrame> const& frames);

/// The failure for the error value at `index`, which `recordFailure` has seen.
ScriptFailure failureOf(lua_State* L, int index);

/// Pushes the error value of the failure; a new one of its identifier and text when that is not known any more.
void pushFailure(lua_State* L, ScriptFailure const& failure);

/// The frames that were running when the error value at `index` was raised, if it came through native code to the
/// frames that are `running`; else those.
std::vector<ScriptFrame> failureFrames(lua_State* L, int index, std::vector<ScriptFrame> running);

} // namespace velmara::console
