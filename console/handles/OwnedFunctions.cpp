#include "handles/OwnedFunctions.hpp"

#include "handles/ObjectValues.hpp"

#include <algorithm>

namespace velmara::console {

bool OwnedFunctions::pushAnchor(lua_State* L, void const* userdata)
{
    anchors_.push(L);
    lua_pushnil(L);
    while (lua_next(L, -2) != 0) {
        lua_pop(L, 1);
        if (lua_touserdata(L, -1) == userdata) {
            lua_remove(L, -2);
            return true;
        }
    }
    lua_pop(L, 1);
    return false;
}

void OwnedFunctions::add(Host host, Function& function)
{
    entries_[host].functions.push_back(&function);
}

void OwnedFunctions::remove(Host host, Function const& function) noexcept
{
    auto const found = entries_.find(host);
    if (found == entries_.end())
        return;
    std::erase(found->second.functions, &function);
    if (found->second.functions.empty())
        entries_.erase(found);
}

bool OwnedFunctions::pushValue(lua_State* L, Host host)
{
    luaL_checkstack(L, 8, nullptr);
    Entry& entry = entries_.at(host);
    if (!entry.value)
        return false;
    pushRecordedValue(L, host);
    if (lua_touserdata(L, -1) == entry.value)
        return true;
    lua_pop(L, 1);
    entry.isWanted = pushAnchor(L, entry.value);
    return entry.isWanted;
}

bool OwnedFunctions::pushFunction(lua_State* L, Host host, Function const& function)
{
    if (!has(host) || !pushValue(L, host))
        return false;
    lua_getiuservalue(L, -1, 1);
    lua_remove(L, -2);
    bool const isThere = lua_istable(L, -1) && lua_rawgetp(L, -1, &function) == LUA_TFUNCTION;
    lua_remove(L, isThere ? -2 : -1);
    return isThere;
}

void OwnedFunctions::anchor(lua_State* L, Host host)
{
    luaL_checkstack(L, 8, nullptr);
    Entry& entry = entries_.at(host);
    lua_newtable(L);
    for (Function const* const function : entry.functions) {
        function->pushHeld(L);
        lua_rawsetp(L, -2, function);
    }
    lua_setiuservalue(L, -2, 1);
    anchors_.push(L);
    lua_pushvalue(L, -2);
    lua_pushboolean(L, true);
    lua_rawset(L, -3);
    lua_pop(L, 1);
    entry.value = lua_touserdata(L, -1);
    for (Function* const function : entry.functions)
        function->drop(L);
}

bool OwnedFunctions::isValue(Host host, void const* userdata) const
{
    return has(host) && entries_.at(host).value == userdata;
}

void OwnedFunctions::keep(lua_State* L, Host host, int index)
{
    index = lua_absindex(L, index);
    entries_.at(host).isWanted = false;
    recordValue(L, host, index);
    lua_getmetatable(L, index);
    lua_setmetatable(L, index); // it is to be finalized again
}

void OwnedFunctions::release(lua_State* L, Host host, int index)
{
    lua_getiuservalue(L, index, 1);
    Entry& entry = entries_.at(host);
    while (!entry.functions.empty()) {
        Function* const function = entry.functions.back();
        lua_rawgetp(L, -1, function);
        function->hold(L);
        entry.functions.pop_back();
    }
    lua_pop(L, 1);
    entries_.erase(host);
}

} // namespace velmara::console
