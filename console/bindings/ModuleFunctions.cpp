#include "bindings/ModuleFunctions.hpp"

#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

#include <filesystem>
#include <string>

namespace velmara::console {

namespace {

std::string checkText(lua_State* L, int index)
{
    std::size_t length = 0;
    char const* text = luaL_checklstring(L, index, &length);
    return {text, length};
}

int modules(lua_State* L)
{
    std::vector<ModuleRecord> const loaded = HostContext::of(L).hvm().modules();
    pushSequence(L, loaded.size(), [&](std::size_t i) {
        lua_newtable(L);
        setField(L, "name", loaded[i].name);
        setField(L, "version", loaded[i].version);
        setField(L, "builddate", loaded[i].buildDate);
        setField(L, "file", loaded[i].file);
    });
    return 1;
}

int loadModule(lua_State* L)
{
    std::string const file = checkText(L, 1);
    pushText(L, HostContext::of(L).hvm().loadModule(std::u8string(file.begin(), file.end())).name);
    return 1;
}

int unloadModule(lua_State* L)
{
    if (HostContext::of(L).isInCallback())
        fail("inUse", "a module cannot be unloaded while native code waits for a function of the script");
    HostContext::of(L).hvm().unloadModule(checkText(L, 1));
    return 0;
}

/// `withvm(function, ...)`: calls the function while a fresh virtual machine is in use.
int withMachine(lua_State* L)
{
    luaL_checktype(L, 1, LUA_TFUNCTION);
    HostContext::FreshMachine const machine(HostContext::of(L));
    ChangeWatch::check(L);
    lua_call(L, lua_gettop(L) - 1, LUA_MULTRET);
    return lua_gettop(L);
}

} // namespace

void bindModuleFunctions(lua_State* L)
{
    lua_register(L, "modules", guarded<modules>);
    lua_register(L, "loadmodule", guarded<loadModule>);
    lua_register(L, "unloadmodule", guarded<unloadModule>);
    lua_register(L, "withvm", guarded<withMachine>);
}

} // namespace velmara::console
