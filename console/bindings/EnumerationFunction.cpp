#include "bindings/EnumerationFunction.hpp"

#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"

#include <limits>
#include <string>
#include <vector>

namespace velmara::console {

namespace {

[[noreturn]] void failElement(std::string const& given)
{
    fail("enumeration", "an enumerator is a name or {name, integer}, not " + given);
}

/// The enumerator that is described on top of the stack.
EnumeratorRecord enumerator(lua_State* L, lua_Integer next)
{
    if (lua_type(L, -1) == LUA_TSTRING)
        return {std::string(textAt(L, -1)), next};
    if (!lua_istable(L, -1))
        failElement(valueText(L, -1));
    lua_rawgeti(L, -1, 1);
    lua_rawgeti(L, -2, 2);
    if (lua_type(L, -2) != LUA_TSTRING || !lua_isinteger(L, -1))
        failElement("{" + valueText(L, -2) + ", " + valueText(L, -1) + "}");
    EnumeratorRecord result{std::string(textAt(L, -2)), lua_tointeger(L, -1)};
    lua_pop(L, 2);
    return result;
}

/// The enumerators of the table. One without a number has the previous one's plus 1, the first 0.
std::vector<EnumeratorRecord> enumerators(lua_State* L, int table)
{
    std::vector<EnumeratorRecord> result;
    for (lua_Integer i = 1; lua_rawgeti(L, table, i) != LUA_TNIL; ++i) {
        lua_Integer const last = result.empty() ? -1 : result.back().value;
        bool const isMax = last == std::numeric_limits<lua_Integer>::max();
        if (isMax && lua_type(L, -1) == LUA_TSTRING)
            fail("enumeration", "there is no integer after that of " + result.back().name);
        result.push_back(enumerator(L, isMax ? last : last + 1));
        lua_pop(L, 1);
    }
    lua_pop(L, 1);
    return result;
}

int defineEnumeration(lua_State* L)
{
    luaL_checktype(L, 1, LUA_TSTRING);
    luaL_checktype(L, 2, LUA_TTABLE);
    std::string const name(textAt(L, 1));
    HostContext::of(L).hvm().defineEnumeration(name, enumerators(L, 2));
    pushProxy(L, name);
    return 1;
}

} // namespace

void bindEnumerationFunction(lua_State* L)
{
    lua_register(L, "enumeration", guarded<defineEnumeration>);
}

} // namespace velmara::console
