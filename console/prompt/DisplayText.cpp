#include "prompt/DisplayText.hpp"

#include <algorithm>
#include <map>

namespace velmara::console {

namespace {

constexpr int maxDepth = 3;
constexpr std::size_t maxElements = 20;

bool hasMetatable(lua_State* L, int index)
{
    if (!lua_getmetatable(L, index))
        return false;
    lua_pop(L, 1);
    return true;
}

std::string plainText(lua_State* L, int index)
{
    luaL_tolstring(L, index, nullptr);
    std::string text(textAt(L, -1));
    lua_pop(L, 1);
    return text;
}

std::string elementText(lua_State* L, int depth)
{
    return lua_type(L, -1) == LUA_TSTRING ? '"' + std::string(textAt(L, -1)) + '"' : displayText(L, -1, depth + 1);
}

void add(std::string& text, std::string const& element)
{
    text += (text.size() > 1 ? ", " : "") + element;
}

/// The elements 1, 2, ... in their order, then the rest by name.
std::string tableText(lua_State* L, int table, int depth)
{
    std::string text = "{";
    std::size_t const count = lua_rawlen(L, table);
    for (std::size_t i = 1; i <= std::min(count, maxElements); ++i) {
        lua_rawgeti(L, table, static_cast<lua_Integer>(i));
        add(text, elementText(L, depth));
        lua_pop(L, 1);
    }
    std::map<std::string, std::string> named;
    for (lua_pushnil(L); lua_next(L, table); lua_pop(L, 1))
        if (lua_type(L, -2) == LUA_TSTRING && named.size() <= maxElements)
            named[std::string(textAt(L, -2))] = elementText(L, depth);
    for (auto const& [name, element] : named)
        add(text, std::string(name).append(" = ").append(element));
    if (count > maxElements || named.size() > maxElements)
        add(text, "...");
    return text + '}';
}

} // namespace

std::string displayText(lua_State* L, int index, int depth)
{
    luaL_checkstack(L, 8, nullptr);
    if (!lua_istable(L, index) || hasMetatable(L, index))
        return plainText(L, index);
    return depth >= maxDepth ? "{...}" : tableText(L, lua_absindex(L, index), depth);
}

} // namespace velmara::console
