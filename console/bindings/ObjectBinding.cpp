#include "bindings/ObjectBinding.hpp"

#include "bindings/ClassMembers.hpp"
#include "lua/ScriptError.hpp"
#include "values/HostCall.hpp"
#include "values/ValueToHost.hpp"

#include "additions/additions.hpp"
#include "orbis/objectArrays.hpp"

#include <new>
#include <string>

namespace velmara::console {

namespace {

char const objectMark = 0; // its address is the key of the mark in an object's metatable

using Holder = GivenArrays::Holder;

Holder* holderAt(lua_State* L, int index)
{
    if (!isObject(L, index))
        fail("noObject", kindAt(L, index) + " is no object");
    return static_cast<Holder*>(lua_touserdata(L, index));
}

int release(lua_State* L)
{
    Session::of(L).given().takeBack(*holderAt(L, 1)).reset();
    return 0;
}

/// The name of the enumerator at `index`; null for other objects.
char const* enumeratorName(lua_State* L, int index)
{
    hvArray_tag const* const array = holderAt(L, index)->array;
    auto const* const enumerator =
        array ? orbis::additions::describeEnumerator(orbis::omGetArrayElement(array, 0)) : nullptr;
    return enumerator ? enumerator->name : nullptr;
}

int toText(lua_State* L)
{
    if (char const* name = enumeratorName(L, 1)) {
        pushText(L, name);
        return 1;
    }
    char const* state = isValidObject(L, 1) ? "" : "invalid ";
    pushText(L, state + std::string(objectClass(L, 1)) + " object");
    return 1;
}

int compare(lua_State* L)
{
    bool const areHeld = isObject(L, 1) && isObject(L, 2) && holderAt(L, 1)->array && holderAt(L, 2)->array;
    lua_pushboolean(L, areHeld && isSameObject(holderAt(L, 1)->array, holderAt(L, 2)->array));
    return 1;
}

std::string_view memberName(lua_State* L, int index)
{
    if (lua_type(L, index) != LUA_TSTRING)
        fail("unknownMember", "a member's name is a string, not " + valueText(L, index));
    return textAt(L, index);
}

/// Upvalue 1 is the class's table of remembered members: a known method is one look into it.
int readMember(lua_State* L)
{
    lua_pushvalue(L, 2);
    if (lua_rawget(L, lua_upvalueindex(1)) == LUA_TFUNCTION)
        return 1;
    std::string_view const name = memberName(L, 2);
    std::string_view const cls = objectClass(L, 1);
    HostCall call(L);
    hvArray_tag* object = call.keep(checkObject(L, 1));
    if (!isValid(object))
        return call.finish(call.hvm().get(object, name)); // refused by the host, in its own words
    if (pushMember(L, cls, name) == MemberKind::Callable)
        return 1;
    return call.finish(call.hvm().get(object, name));
}

int writeMember(lua_State* L)
{
    std::string_view const name = memberName(L, 2);
    std::string_view const cls = objectClass(L, 1);
    HostCall call(L);
    hvArray_tag* object = call.keep(checkObject(L, 1));
    if (isValid(object))
        checkProperty(L, cls, name);
    call.hvm().set(object, name, call.inputs(3).front());
    return 0;
}

void setFunctions(lua_State* L, std::string_view className)
{
    luaL_Reg const functions[] = {{"__newindex", guarded<writeMember>}, {"__gc", guarded<release>},
                                  {"__close", guarded<release>},        {"__eq", guarded<compare>},
                                  {"__tostring", guarded<toText>},      {nullptr, nullptr}};
    luaL_setfuncs(L, functions, 0);
    pushRememberedMembers(L, className);
    lua_pushcclosure(L, guarded<readMember>, 1);
    lua_setfield(L, -2, "__index");
}

void pushMetatable(lua_State* L, std::string_view className)
{
    luaL_getsubtable(L, LUA_REGISTRYINDEX, "velmara.classes");
    pushText(L, className);
    if (lua_rawget(L, -2) != LUA_TTABLE) {
        lua_pop(L, 1);
        lua_newtable(L);
        setFunctions(L, className);
        for (char const* field : {"__name", "__metatable"}) {
            pushText(L, className);
            lua_setfield(L, -2, field);
        }
        lua_pushboolean(L, true);
        lua_rawsetp(L, -2, &objectMark);
        pushText(L, className);
        lua_pushvalue(L, -2);
        lua_rawset(L, -4);
    }
    lua_remove(L, -2);
}

} // namespace

void pushObject(lua_State* L, hvArray_tag const* array, std::size_t index)
{
    Session::of(L).requireRunning();
    luaL_checkstack(L, 10, nullptr);
    ArrayStack::Frame frame(Session::of(L).arrays());
    hvArray_tag* scalar = frame.push(ArrayPtr(orbis::omCreateORBISScalar(orbis::omGetArrayElement(array, index))));
    if (scalar->get_number_of_elements() == 0)
        return lua_pushnil(L);
    auto* holder = new (lua_newuserdatauv(L, sizeof(Holder), 0)) Holder;
    pushMetatable(L, className(scalar));
    lua_setmetatable(L, -2);
    scalar->add_reference();
    Session::of(L).given().give(*holder, ArrayPtr(scalar));
}

bool isObject(lua_State* L, int index)
{
    if (lua_type(L, index) != LUA_TUSERDATA || !lua_getmetatable(L, index))
        return false;
    bool const isMarked = lua_rawgetp(L, -1, &objectMark) != LUA_TNIL;
    lua_pop(L, 2);
    return isMarked;
}

hvArray_tag* checkObject(lua_State* L, int index)
{
    Holder const* holder = holderAt(L, index);
    if (!holder->array)
        fail("closed", "this object of " + std::string(objectClass(L, index)) + " was given back");
    return holder->array;
}

std::string_view objectClass(lua_State* L, int index)
{
    holderAt(L, index);
    luaL_getmetafield(L, index, "__name");
    std::string_view const name = textAt(L, -1);
    lua_pop(L, 1); // the metatable still holds it
    return name;
}

bool isValidObject(lua_State* L, int index)
{
    Holder const* holder = holderAt(L, index);
    return holder->array && isValid(holder->array);
}

} // namespace velmara::console
