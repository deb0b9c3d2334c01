#include "lua/RegistryTable.hpp"

#include "lua/Table.hpp"

namespace velmara::console {

void RegistryTable::create(lua_State* L)
{
    luaL_checkstack(L, 6, nullptr);
    lua_newtable(L);
    if (mode_) {
        lua_createtable(L, 0, 1);
        setField(L, "__mode", mode_);
        lua_setmetatable(L, -2);
    }
    reference_ = luaL_ref(L, LUA_REGISTRYINDEX);
}

} // namespace velmara::console
