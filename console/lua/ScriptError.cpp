#include "lua/ScriptError.hpp"

#include "lua/CachedValue.hpp"
#include "lua/ScriptFailure.hpp"
#include "lua/ScriptFrames.hpp"
#include "lua/Table.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <new>

namespace velmara::console {

namespace {

// Its address is the key of the function in the registry that converts values of fields.
char const conversionKey = 0;

int errorToText(lua_State* L)
{
    luaL_checktype(L, 1, LUA_TTABLE);
    pushText(L, fieldText(L, 1, "identifier") + ": " + fieldText(L, 1, "text"));
    return 1;
}

int convertToText(lua_State* L)
{
    luaL_tolstring(L, 1, nullptr);
    return 1;
}

} // namespace

void pushError(lua_State* L, std::string_view identifier, std::string_view text)
{
    luaL_checkstack(L, 6, nullptr);
    lua_createtable(L, 0, 3);
    setField(L, "identifier", identifier);
    setField(L, "text", text);
    if (std::string const position = scriptPosition(L); !position.empty())
        setField(L, "where", position);
    pushNamedMetatable(L, "velmara.error", [L] { setField(L, "__tostring", guarded<errorToText>); });
    lua_setmetatable(L, -2);
}

void pushError(lua_State* L, Error const& error)
{
    pushError(L, error.identifier(), error.text());
    for (ErrorField const& field : error.fields()) {
        lua_rawgetp(L, LUA_REGISTRYINDEX, &conversionKey);
        lua_pushlightuserdata(L, const_cast<hvArray_tag*>(field.value.get()));
        if (lua_pcall(L, 1, 1, 0) == LUA_OK) {
            pushText(L, field.name);
            lua_insert(L, -2);
            lua_rawset(L, -3);
        } else {
            lua_pop(L, 1); // the error itself is what the script needs
        }
    }
    if (error.cause()) {
        pushError(L, *error.cause());
        lua_setfield(L, -2, "cause");
    }
}

void convertFieldsWith(lua_State* L, lua_CFunction convert)
{
    lua_pushcfunction(L, convert);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &conversionKey);
}

bool isError(lua_State* L, int index)
{
    if (!lua_istable(L, index))
        return false;
    index = lua_absindex(L, index);
    lua_pushliteral(L, "identifier");
    bool result = lua_rawget(L, index) == LUA_TSTRING;
    lua_pushliteral(L, "text");
    result = lua_rawget(L, index) == LUA_TSTRING && result;
    lua_pop(L, 2);
    return result;
}

std::string errorText(lua_State* L, int index)
{
    index = lua_absindex(L, index);
    lua_pushcfunction(L, convertToText);
    lua_pushvalue(L, index);
    bool const isText = lua_pcall(L, 1, 1, 0) == LUA_OK;
    std::string text(isText ? textAt(L, -1) : std::string_view("error without a text"));
    lua_pop(L, 1);
    return text;
}

void fail(std::string_view key, std::string const& text)
{
    throw Error("VELMARA:console:" + std::string(key), text);
}

void pushCaught(lua_State* L, foundation::core::except::IMsgIDException const& error)
{
    pushError(L, error.getErrorID(), fl::i18n::to_string(error.GetUnicodeMessageTxt()));
}

void pushCaught(lua_State* L, std::exception const& error)
{
    if (auto const* const failure = dynamic_cast<ScriptFailure const*>(&error))
        pushFailure(L, *failure);
    else if (auto const* const known = dynamic_cast<Error const*>(&error))
        pushError(L, *known);
    else if (auto const* const native = dynamic_cast<foundation::core::except::IMsgIDException const*>(&error))
        pushCaught(L, *native);
    else if (dynamic_cast<std::bad_alloc const*>(&error))
        pushError(L, Error::outOfMemory());
    else
        pushError(L, "VELMARA:console:internal", error.what());
}

} // namespace velmara::console
