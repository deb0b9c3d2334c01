#include "arrays/Dimension.hpp"

#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"

namespace velmara::console {

Dimension checkDimension(lua_State* L, int index)
{
    if (lua_isnoneornil(L, index))
        return Dimension::All;
    if (lua_type(L, index) == LUA_TNUMBER) {
        if (lua_tonumber(L, index) == 1)
            return Dimension::Columns;
        if (lua_tonumber(L, index) == 2)
            return Dimension::Rows;
    }
    fail("dimension", "a dimension is 1, down each column, or 2, along each row, not " + valueText(L, index));
}

} // namespace velmara::console
