#include "bindings/Operators.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/OperatorMembers.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "values/HostCall.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

/// Calls the member named by the upvalue, of the first operand that has it.
int applyOperator(lua_State* L)
{
    std::string_view const member = textAt(L, lua_upvalueindex(1));
    if (lua_Integer const operands = lua_tointeger(L, lua_upvalueindex(2)); operands != 0)
        lua_settop(L, static_cast<int>(operands));
    int const count = lua_gettop(L);
    bool const isOfFirst = isObject(L, 1) && luaL_getmetafield(L, 1, member.data()) != LUA_TNIL;
    lua_settop(L, count);
    pushMember(L, objectClass(L, isOfFirst ? 1 : 2), member);
    lua_insert(L, 1);
    lua_call(L, count, 1);
    return 1;
}

/// Pushes whether both are one object, as the upvalue says; false if instead their values are to be compared.
bool compareIdentity(lua_State* L)
{
    lua_pushvalue(L, lua_upvalueindex(1));
    lua_pushvalue(L, 1);
    lua_pushvalue(L, 2);
    lua_call(L, 2, 1);
    if (lua_toboolean(L, -1) != 0 || !isObject(L, 1) || !isObject(L, 2) || objectClass(L, 1) != objectClass(L, 2) ||
        !isValidObject(L, 1) || !isValidObject(L, 2))
        return true;
    lua_pop(L, 1);
    return false;
}

int compareByMember(lua_State* L)
{
    if (compareIdentity(L))
        return 1;
    pushMember(L, objectClass(L, 1), "equals");
    lua_insert(L, 1);
    lua_call(L, 2, 1);
    return 1;
}

int compareNatives(lua_State* L)
{
    if (compareIdentity(L))
        return 1;
    HostCall call(L);
    hvArray_tag* const first = call.share(checkObject(L, 1));
    hvArray_tag* const second = call.share(checkObject(L, 2));
    lua_pushboolean(L, call.hvm().areEqual(first, second));
    return 1;
}

int describeObject(lua_State* L)
{
    if (!isValidObject(L, 1)) {
        lua_pushvalue(L, lua_upvalueindex(1)); // what is said of any object
    } else {
        pushMember(L, objectClass(L, 1), "text");
    }
    lua_insert(L, 1);
    lua_call(L, 1, 1);
    return 1;
}

/// The step of an iteration: the state is the object, the control variable the last index.
int nextItem(lua_State* L)
{
    lua_Integer const index = lua_tointeger(L, 2) + 1;
    lua_settop(L, 1);
    lua_len(L, 1);
    if (index > lua_tointeger(L, -1))
        return 0;
    lua_pushinteger(L, index);
    lua_pushinteger(L, index);
    lua_gettable(L, 1);
    return 2;
}

int iterateItems(lua_State* L)
{
    lua_settop(L, 1);
    lua_pushcfunction(L, guarded<nextItem>);
    lua_insert(L, 1);
    lua_pushinteger(L, 0);
    return 3;
}

/// Wraps the metamethod on top of the stack's table.
void wrap(lua_State* L, char const* metamethod, lua_CFunction wrapper)
{
    lua_getfield(L, -1, metamethod);
    lua_pushcclosure(L, wrapper, 1);
    lua_setfield(L, -2, metamethod);
}

/// Whether the metatable's class has the member, as `addOperators` found.
bool callItem(lua_State* L, std::string_view className, char const* member)
{
    int const count = lua_gettop(L);
    bool const has = luaL_getmetafield(L, 1, member) != LUA_TNIL;
    lua_settop(L, count);
    if (!has)
        return false;
    pushMember(L, className, member);
    lua_insert(L, 1);
    lua_call(L, count, 1);
    return true;
}

} // namespace

void addOperators(lua_State* L, std::string_view className)
{
    ClassRecord const cls = HostContext::of(L).hvm().describeClass(className);
    auto const has = [&](char const* member) {
        return std::ranges::any_of(cls.methods, [&](MethodRecord const& method) {
            return method.name == member && method.kind != MethodRecord::Kind::Constructor;
        });
    };
    for (auto const& [metamethod, member, operands] : operatorMembers()) {
        if (!has(member))
            continue;
        setField(L, member, true); // read by the functions above
        lua_pushstring(L, member);
        lua_pushinteger(L, operands);
        lua_pushcclosure(L, guarded<applyOperator>, 2);
        lua_setfield(L, -2, metamethod);
    }
    for (char const* const member : {"item", "setItem"})
        if (has(member))
            setField(L, member, true);
    if (has("equals"))
        wrap(L, "__eq", guarded<compareByMember>);
    else if (cls.hasEquality)
        wrap(L, "__eq", guarded<compareNatives>);
    if (has("text"))
        wrap(L, "__tostring", guarded<describeObject>);
    if (has("item") && has("length"))
        setField(L, "__pairs", guarded<iterateItems>);
}

bool readItem(lua_State* L, std::string_view className)
{
    return callItem(L, className, "item");
}

bool writeItem(lua_State* L, std::string_view className)
{
    return callItem(L, className, "setItem");
}

} // namespace velmara::console
