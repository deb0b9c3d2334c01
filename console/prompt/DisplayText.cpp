#include "prompt/DisplayText.hpp"

#include "show/ValueInspector.hpp"

namespace velmara::console {

namespace {

bool isPlainTable(lua_State* L, int index)
{
    if (!lua_istable(L, index) || !lua_getmetatable(L, index))
        return lua_istable(L, index);
    lua_pop(L, 1);
    return false;
}

} // namespace

std::string displayText(lua_State* L, int index)
{
    luaL_checkstack(L, 8, nullptr);
    if (!isPlainTable(L, index)) {
        luaL_tolstring(L, index, nullptr);
        std::string text(textAt(L, -1));
        lua_pop(L, 1);
        return text;
    }
    Page page(outputScreen());
    ValueInspector(L, page).show({}, index);
    return page.text().substr(0, page.text().size() - 1);
}

} // namespace velmara::console
