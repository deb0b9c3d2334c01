#pragma once

#include "lua/LuaApi.hpp"

#include "orbis/COSInterface.hpp"

#include <cstddef>

namespace velmara::console {

/// The values of the script by the host objects that they hold: an object that crosses again is the value that it is
/// already. None is kept alive: Lua drops a value as soon as it finds it to be garbage.

/// Pushes the value recorded of the object, nil when there is none. It may have released the object, and the address be
/// another's by now: it is the object's value only if it still holds the object.
void pushRecordedValue(lua_State* L, orbis::COSInterface const* host);

/// Records the value at `index` as that of the object, which has a number of its own among those that the script has.
void recordValue(lua_State* L, orbis::COSInterface* host, int index, std::size_t number);

/// The same for the value that was recorded before.
void recordValue(lua_State* L, orbis::COSInterface const* host, int index);

} // namespace velmara::console
