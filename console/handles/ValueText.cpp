#include "handles/ValueText.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/Sentinel.hpp"

#include "velmara/Hvm.hpp"

#include <cmath>

namespace velmara::console {

std::string kindAt(lua_State* L, int index)
{
    switch (lua_type(L, index)) {
    case LUA_TNONE:
    case LUA_TNIL:
        return "nil";
    case LUA_TTABLE:
        if (auto const name = proxyName(L, index); !name.empty())
            return "the name " + std::string(name);
        break;
    case LUA_TUSERDATA:
        if (isObject(L, index))
            return "an object of " + std::string(objectClass(L, index));
        if (hvArray_tag const* const array = testHostArray(L, index))
            return "an array of class " + className(array);
        if (isNull(L, index) || isMissing(L, index))
            return isNull(L, index) ? "null" : "missing";
        break;
    default:
        break;
    }
    return std::string("a ") + luaL_typename(L, index);
}

std::string valueText(lua_State* L, int index)
{
    if (lua_type(L, index) != LUA_TNUMBER)
        return kindAt(L, index);
    if (std::isnan(lua_tonumber(L, index)))
        return "NaN";        // the sign is arbitrary, and the C libraries differ
    lua_pushvalue(L, index); // `lua_tostring` converts in place
    std::string text = lua_tostring(L, -1);
    lua_pop(L, 1);
    return text;
}

} // namespace velmara::console
