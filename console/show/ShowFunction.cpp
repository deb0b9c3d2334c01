#include "show/ShowFunction.hpp"

#include "lua/ScriptError.hpp"
#include "show/ValueInspector.hpp"

#include <cstdio>
#include <string>

namespace velmara::console {

namespace {

int showValues(lua_State* L)
{
    luaL_checkany(L, 1);
    int const count = lua_gettop(L);
    Page page(outputScreen());
    for (int i = 1; i <= count; ++i)
        ValueInspector(L, page).show({}, i);
    std::fwrite(page.text().data(), 1, page.text().size(), stdout);
    return 0;
}

} // namespace

void bindShowFunction(lua_State* L)
{
    lua_register(L, "show", guarded<showValues>);
}

} // namespace velmara::console
