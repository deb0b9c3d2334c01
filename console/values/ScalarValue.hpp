#pragma once

#include "lua/LuaApi.hpp"

#include "velmara/ArrayPtr.hpp"

#include "orbis/COSValue.hpp"

namespace velmara::console {

/// Lua's numbers and booleans as scalars of the host, and back.

/// True for the integers that are passed as doubles: every integer up to their magnitude is exactly one.
constexpr bool isInExactRange(lua_Integer value)
{
    constexpr lua_Integer limit = lua_Integer{1} << 53;
    return -limit <= value && value <= limit;
}

/// The scalar for the Lua value at `index`, which is of that Lua type: for a number a double where it is exactly one,
/// else an int64; for a boolean a logical. False for any other value.
inline bool readScalar(lua_State* L, int index, int type, orbis::COSValue& scalar)
{
    if (type == LUA_TBOOLEAN) {
        scalar = orbis::COSValue(lua_toboolean(L, index) != 0);
        return true;
    }
    if (type != LUA_TNUMBER)
        return false;
    double const number = lua_tonumberx(L, index, nullptr);
    constexpr double exactRange = lua_Integer{1} << 53;
    scalar = orbis::COSValue(number);
    bool const isExact = -exactRange < number && number < exactRange;
    if (!isExact && lua_isinteger(L, index) && !isInExactRange(lua_tointeger(L, index))) [[unlikely]]
        scalar = orbis::COSValue(static_cast<std::int64_t>(lua_tointeger(L, index)));
    return true;
}

/// A new 1-by-1 array of the scalar.
ArrayPtr toArray(orbis::COSValue const& scalar);

/// Pushes a float for double and single, else an integer; a boolean for a logical; a 1-by-1 host array for a uint64
/// beyond Lua's integers.
void pushScalar(lua_State* L, orbis::COSValue const& scalar);

/// The same for the element at a zero-based index of an array's data.
void pushNumericElement(lua_State* L, hvClassID classID, void const* data, std::size_t index);

} // namespace velmara::console
