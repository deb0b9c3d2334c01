#include "bindings/MemberIteration.hpp"

#include "bindings/MemberRecords.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

namespace velmara::console {

namespace {

/// Pushes the next element of the sequence in upvalue 1; the last one's number is upvalue 2. False at the end.
bool pushNext(lua_State* L)
{
    lua_Integer const index = lua_tointeger(L, lua_upvalueindex(2)) + 1;
    lua_pushinteger(L, index);
    lua_replace(L, lua_upvalueindex(2));
    return lua_rawgeti(L, lua_upvalueindex(1), index) != LUA_TNIL;
}

/// What has the names is the state of the iteration.
int nextName(lua_State* L)
{
    if (!pushNext(L))
        return 1;
    lua_pushvalue(L, -1);
    lua_gettable(L, 1);
    return 2;
}

int nextMember(lua_State* L)
{
    if (!pushNext(L))
        return 1;
    lua_getfield(L, -1, "name");
    lua_insert(L, -2);
    return 2;
}

/// Pushes the iterator over the sequence on top, and the state, which is the value at 1.
int pushIteration(lua_State* L, lua_CFunction next)
{
    lua_pushinteger(L, 0);
    lua_pushcclosure(L, next, 2);
    lua_pushvalue(L, 1);
    return 2;
}

} // namespace

int iterateProperties(lua_State* L)
{
    checkObject(L, 1);
    ClassRecord const cls = HostContext::of(L).hvm().describeClass(objectClass(L, 1));
    std::vector<std::string> names;
    for (PropertyRecord const& property : cls.properties)
        if (property.isVisible && !property.isStatic && isReadable(property))
            names.push_back(property.name);
    return iterateNames(L, names);
}

int iterateNames(lua_State* L, std::vector<std::string> const& names)
{
    pushSequence(L, names.size(), [&](std::size_t i) { pushText(L, names[i]); });
    return pushIteration(L, guarded<nextName>);
}

int iterateMembers(lua_State* L, ClassRecord const& cls)
{
    pushMembers(L, cls);
    return pushIteration(L, guarded<nextMember>);
}

} // namespace velmara::console
