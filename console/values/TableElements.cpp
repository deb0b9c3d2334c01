#include "values/TableElements.hpp"

#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/ScalarValue.hpp"

#include <algorithm>
#include <string>

namespace velmara::console {

namespace {

unsigned kindsOf(lua_State* L, int index)
{
    switch (lua_type(L, index)) {
    case LUA_TNUMBER:
        if (!lua_isinteger(L, index))
            return Elements::Numbers | Elements::ExactDoubles;
        return Elements::Numbers | Elements::Integers |
               (isInExactRange(lua_tointeger(L, index)) ? Elements::ExactDoubles : 0U);
    case LUA_TBOOLEAN:
        return Elements::Booleans;
    case LUA_TTABLE:
        return Elements::Tables;
    case LUA_TUSERDATA:
        return isObject(L, index) ? Elements::Objects : 0U;
    default:
        return 0;
    }
}

/// The key at `index`, for an error text.
std::string keyText(lua_State* L, int index)
{
    return lua_type(L, index) == LUA_TSTRING ? '\'' + std::string(textAt(L, index)) + '\'' : valueText(L, index);
}

void addNumber(lua_State* L, int table, std::vector<double>& numbers)
{
    if (numbers.empty())
        numbers.reserve(lua_rawlen(L, table));
    numbers.push_back(lua_tonumber(L, -1));
}

} // namespace

std::vector<std::string> textKeysOf(lua_State* L, int table)
{
    if (!proxyName(L, table).empty()) // refused by `elementsOf`
        return {};
    luaL_checkstack(L, 8, nullptr);
    std::vector<std::string> keys;
    for (lua_pushnil(L); lua_next(L, table); lua_pop(L, 1)) {
        if (lua_type(L, -2) != LUA_TSTRING) {
            lua_pop(L, 2);
            return {};
        }
        keys.emplace_back(textAt(L, -2));
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

Elements elementsOf(lua_State* L, int table, std::vector<double>* numbers)
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
        elements.kinds &= kindsOf(L, -1);
        if (numbers && elements.are(Elements::ExactDoubles) && static_cast<std::size_t>(key) == elements.count + 1)
            addNumber(L, table, *numbers);
        ++elements.count;
    }
    if (static_cast<std::size_t>(last) != elements.count)
        fail("table", "a table must be a sequence to be passed to the host; this one has holes before element " +
                          std::to_string(last) + " (write null for an empty element)");
    return elements;
}

} // namespace velmara::console
