#include "bindings/ObjectBinding.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/Operators.hpp"
#include "handles/HostObject.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "values/HostCall.hpp"

namespace velmara::console {

namespace {

std::string_view memberName(lua_State* L, int index)
{
    if (lua_type(L, index) != LUA_TSTRING)
        fail("unknownMember", "a member's name is a string, not " + valueText(L, index));
    return textAt(L, index);
}

/// Upvalue 1 is the class's table of cached members: a known method is a single look-up.
int readMember(lua_State* L)
{
    lua_pushvalue(L, 2);
    if (lua_rawget(L, lua_upvalueindex(1)) == LUA_TFUNCTION)
        return 1;
    lua_settop(L, 2);
    std::string_view const cls = objectClass(L, 1);
    if (lua_type(L, 2) != LUA_TSTRING && readItem(L, cls))
        return 1;
    std::string_view const name = memberName(L, 2);
    HostCall call(L);
    hvArray_tag* object = call.share(checkObject(L, 1));
    if (!isValid(object))
        return call.finish(call.hvm().get(object, name)); // the host throws its own error
    if (pushMember(L, cls, name) == MemberKind::Callable)
        return 1;
    return call.finish(call.hvm().get(object, name));
}

int writeMember(lua_State* L)
{
    std::string_view const cls = objectClass(L, 1);
    if (lua_type(L, 2) != LUA_TSTRING && writeItem(L, cls))
        return 0;
    std::string_view const name = memberName(L, 2);
    HostCall call(L);
    hvArray_tag* object = call.share(checkObject(L, 1));
    if (isValid(object))
        checkProperty(L, cls, name);
    call.hvm().set(object, name, call.inputs(3).front());
    return 0;
}

/// Completes the metatable, argument 1, of a class by its name, argument 2.
int addMembers(lua_State* L)
{
    pushMemberCache(L, textAt(L, 2));
    lua_pushcclosure(L, guarded<readMember>, 1);
    lua_setfield(L, 1, "__index");
    lua_settop(L, 1);
    setField(L, "__newindex", guarded<writeMember>);
    addOperators(L, fieldText(L, 1, "__name"));
    return 0;
}

} // namespace

void bindObjectMembers(lua_State* L)
{
    completeMetatablesWith(L, guarded<addMembers>);
}

} // namespace velmara::console
