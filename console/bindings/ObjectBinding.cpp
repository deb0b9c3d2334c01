#include "bindings/ObjectBinding.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/MemberIteration.hpp"
#include "bindings/Operators.hpp"
#include "handles/HostContext.hpp"
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

/// Pushes what upvalue 1, the class's table of known members, has for the key at 2; returns its type.
int pushKnownMember(lua_State* L)
{
    lua_pushvalue(L, 2);
    return lua_rawget(L, lua_upvalueindex(1));
}

int readProperty(lua_State* L, Member& property)
{
    HostCall call(L);
    hvArray_tag* const object = call.share(checkObject(L, 1));
    return call.finish(call.hvm().get(object, property.name, call.failure()));
}

int readMember(lua_State* L)
{
    int const known = pushKnownMember(L);
    if (known == LUA_TFUNCTION)
        return 1;
    if (known == LUA_TLIGHTUSERDATA)
        return readProperty(L, *static_cast<Member*>(lua_touserdata(L, -1)));
    lua_settop(L, 2);
    std::string_view const cls = objectClass(L, 1);
    if (lua_type(L, 2) != LUA_TSTRING && readItem(L, cls))
        return 1;
    std::string_view const name = memberName(L, 2);
    bool const isCallable = isValid(checkObject(L, 1)) ? pushMember(L, cls, name) == MemberKind::Callable
                                                       : pushFormerCallable(L, cls, name);
    if (isCallable)
        return 1;
    return readProperty(L, HostContext::of(L).members().ofClass(cls, name)); // of what is invalid the host throws
}

/// Null when it is not known yet, or cannot be written.
Member* knownProperty(lua_State* L)
{
    auto* const member =
        pushKnownMember(L) == LUA_TLIGHTUSERDATA ? static_cast<Member*>(lua_touserdata(L, -1)) : nullptr;
    lua_pop(L, 1);
    return member && member->kind != MemberKind::Enumerator ? member : nullptr;
}

void checkWritable(lua_State* L, std::string_view cls, std::string_view name)
{
    if (isValid(checkObject(L, 1)))
        checkProperty(L, cls, name);
}

int writeMember(lua_State* L)
{
    Member* property = knownProperty(L);
    if (!property) {
        std::string_view const cls = objectClass(L, 1);
        if (lua_type(L, 2) != LUA_TSTRING && writeItem(L, cls))
            return 0;
        std::string_view const name = memberName(L, 2);
        checkWritable(L, cls, name);
        property = &HostContext::of(L).members().ofClass(cls, name);
    }
    HostCall call(L);
    hvArray_tag* const object = call.share(checkObject(L, 1));
    call.hvm().set(object, property->name, call.values(3).front(), call.failure());
    return call.finish(Value());
}

/// Completes the metatable, argument 1, of a class by its name, argument 2.
int addMembers(lua_State* L)
{
    pushMemberCache(L, textAt(L, 2));
    lua_pushvalue(L, -1);
    lua_pushcclosure(L, guarded<readMember>, 1);
    lua_setfield(L, 1, "__index");
    lua_pushcclosure(L, guarded<writeMember>, 1);
    lua_setfield(L, 1, "__newindex");
    lua_settop(L, 1);
    setField(L, "__pairs", guarded<iterateProperties>);
    addOperators(L, fieldText(L, 1, "__name"));
    return 0;
}

} // namespace

void bindObjectMembers(lua_State* L)
{
    completeMetatablesWith(L, guarded<addMembers>);
}

} // namespace velmara::console
