#include "values/TableElements.hpp"

#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/ValueToHost.hpp"

#include <algorithm>
#include <string>

namespace velmara::console {

namespace {

void addElement(lua_State* L, int index, Elements& elements)
{
    int const type = lua_type(L, index);
    bool const isInteger = lua_isinteger(L, index) != 0;
    elements.areNumbers = elements.areNumbers && type == LUA_TNUMBER;
    elements.areIntegers = elements.areIntegers && isInteger;
    elements.areExactDoubles = elements.areExactDoubles && (!isInteger || isInExactRange(lua_tointeger(L, index)));
    elements.areBooleans = elements.areBooleans && type == LUA_TBOOLEAN;
    elements.areObjects = elements.areObjects && type == LUA_TUSERDATA && isObject(L, index);
    elements.areTables = elements.areTables && type == LUA_TTABLE;
    ++elements.count;
}

/// The key at `index`, for an error text.
std::string keyText(lua_State* L, int index)
{
    return lua_type(L, index) == LUA_TSTRING ? '\'' + std::string(textAt(L, index)) + '\'' : valueText(L, index);
}

} // namespace

Elements elementsOf(lua_State* L, int table)
{
    if (auto const name = proxyName(L, table); !name.empty())
        fail("value", "the name " + std::string(name) + " cannot be passed to the host");
    luaL_checkstack(L, 8, nullptr);
    Elements elements;
    lua_Integer last = 0;
    for (lua_pushnil(L); lua_next(L, table); lua_pop(L, 1)) {
        lua_Integer const key = lua_isinteger(L, -2) ? lua_tointeger(L, -2) : 0;
        if (key < 1)
            fail("table",
                 "a table must be a sequence to be passed to the host; this one has the key " + keyText(L, -2));
        last = std::max(last, key);
        addElement(L, -1, elements);
    }
    if (static_cast<std::size_t>(last) != elements.count)
        fail("table", "a table must be a sequence to be passed to the host; this one has holes before element " +
                          std::to_string(last) + " (write null for an empty element)");
    return elements;
}

} // namespace velmara::console
