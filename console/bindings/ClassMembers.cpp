#include "bindings/ClassMembers.hpp"

#include "bindings/MemberRecords.hpp"
#include "handles/HostObject.hpp"
#include "handles/PublishedAnswers.hpp"
#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "text/CloseMatches.hpp"
#include "values/HostCall.hpp"

#include "libhv/libhv.hpp"

#include <algorithm>
#include <string>

namespace velmara::console {

namespace {

constexpr char const* callablesName = "velmara.callables"; // in the registry: the latest functions by full name

/// The upvalues of a callable member's function.
enum Upvalue { classUpvalue = 1, memberUpvalue, instanceUpvalue, staticUpvalue, nameUpvalue };

bool flag(lua_State* L, Upvalue which)
{
    return lua_toboolean(L, lua_upvalueindex(which)) != 0;
}

bool startsWithObject(lua_State* L, Hvm& hvm)
{
    if (!isObject(L, 1))
        return false;
    if (!flag(L, staticUpvalue))
        return true;
    // The name is also that of a static method: the object is the method's only if it is of the class.
    Hvm::Scope const scope(hvm);
    return hvIsA(checkObject(L, 1), lua_tostring(L, lua_upvalueindex(classUpvalue)));
}

ArrayPtr callStatic(lua_State* L, HostCall& call)
{
    std::string const cls(textAt(L, lua_upvalueindex(classUpvalue)));
    std::string const name(textAt(L, lua_upvalueindex(memberUpvalue)));
    try {
        return call.hvm().callStatic(cls, name, call.inputs(1));
    } catch (Error const& error) {
        bool const hasColon =
            isObject(L, 1) && objectClass(L, 1) == cls && error.identifier() == "VELMARA:dispatch:noMatch";
        if (!hasColon)
            throw;
        throw Error(error.identifier(),
                    error.text() + "\n  \"" + name + "\" is static: write " + cls + '.' + name + "(...), with a dot");
    }
}

int callMember(lua_State* L)
{
    std::string_view const name = textAt(L, lua_upvalueindex(memberUpvalue));
    HostCall call(L);
    if (flag(L, instanceUpvalue) && startsWithObject(L, call.hvm())) {
        hvArray_tag* object = call.share(checkObject(L, 1));
        return call.finish(call.hvm().call(object, name, call.inputs(2), call.failure()));
    }
    if (!flag(L, staticUpvalue))
        fail("noObject", std::string(name) + " needs an object of " +
                             std::string(textAt(L, lua_upvalueindex(classUpvalue))) +
                             " first: write object:" + std::string(name) + "(...)");
    return call.finish(callStatic(L, call));
}

int callPackageFunction(lua_State* L)
{
    HostCall call(L);
    return call.finish(
        call.hvm().callFunction(textAt(L, lua_upvalueindex(nameUpvalue)), call.inputs(1), call.failure()));
}

void pushCallable(lua_State* L, std::string_view cls, std::string_view name, bool instance, bool withoutObject)
{
    pushText(L, cls);
    pushText(L, name);
    lua_pushboolean(L, instance);
    lua_pushboolean(L, withoutObject);
    std::string const fullName = std::string(cls) + '.' + std::string(name);
    pushText(L, fullName);
    lua_pushcclosure(L, guarded<callMember>, nameUpvalue);
    luaL_getsubtable(L, LUA_REGISTRYINDEX, callablesName);
    lua_pushvalue(L, -2);
    lua_setfield(L, -2, fullName.c_str());
    lua_pop(L, 1);
}

[[noreturn]] void failUnknown(ClassRecord const& cls, std::string_view name)
{
    fail("unknownMember", cls.name + " has no member '" + std::string(name) + "'" + didYouMean(name, memberNames(cls)));
}

/// Pushes what is cached of the member: the function of a callable one, the kind of another.
void pushCacheEntry(lua_State* L, std::string_view cls, std::string_view name)
{
    ClassRecord const record = HostContext::of(L).hvm().describeClass(cls);
    auto const isCalled = [&](MethodRecord::Kind kind) {
        return std::ranges::any_of(
            record.methods, [&](MethodRecord const& method) { return method.name == name && method.kind == kind; });
    };
    bool const instance = isCalled(MethodRecord::Kind::Method);
    bool const withoutObject = isCalled(MethodRecord::Kind::StaticMethod);
    if (instance || withoutObject)
        return pushCallable(L, cls, name, instance, withoutObject);
    if (std::ranges::find(record.enumerators, name, &EnumeratorRecord::name) != record.enumerators.end())
        return lua_pushinteger(L, static_cast<lua_Integer>(MemberKind::Enumerator));
    auto const property = std::ranges::find(record.properties, name, &PropertyRecord::name);
    if (property == record.properties.end())
        failUnknown(record, name);
    auto const kind = property->isStatic ? MemberKind::StaticProperty : MemberKind::Property;
    lua_pushinteger(L, static_cast<lua_Integer>(kind));
}

} // namespace

void pushMemberCache(lua_State* L, std::string_view className)
{
    pushAnswers(L, Answers::Members);
    pushCached(L, lua_gettop(L), className, [L] { lua_newtable(L); });
    lua_remove(L, -2);
}

MemberKind pushMember(lua_State* L, std::string_view className, std::string_view name)
{
    luaL_checkstack(L, 10, nullptr);
    forgetOutdated(L);
    pushMemberCache(L, className);
    pushCached(L, lua_gettop(L), name, [&] { pushCacheEntry(L, className, name); });
    lua_remove(L, -2);
    if (lua_isfunction(L, -1))
        return MemberKind::Callable;
    auto const kind = static_cast<MemberKind>(lua_tointeger(L, -1));
    lua_pop(L, 1);
    return kind;
}

bool pushFormerCallable(lua_State* L, std::string_view className, std::string_view name)
{
    luaL_checkstack(L, 4, nullptr);
    luaL_getsubtable(L, LUA_REGISTRYINDEX, callablesName);
    pushText(L, std::string(className).append(1, '.').append(name));
    bool const wasFound = lua_rawget(L, -2) == LUA_TFUNCTION;
    lua_remove(L, -2);
    lua_pop(L, wasFound ? 0 : 1);
    return wasFound;
}

MemberKind checkProperty(lua_State* L, std::string_view className, std::string_view name)
{
    MemberKind const kind = pushMember(L, className, name);
    if (kind == MemberKind::Callable)
        fail("method", std::string(className) + '.' + std::string(name) + " is a method: it cannot be set");
    if (kind == MemberKind::Enumerator)
        fail("readOnly", std::string(className) + '.' + std::string(name) + " is an enumerator: it cannot be set");
    return kind;
}

void pushPackageFunction(lua_State* L, std::string_view fullName)
{
    luaL_checkstack(L, 8, nullptr);
    for (int i = classUpvalue; i < nameUpvalue; ++i)
        lua_pushnil(L);
    pushText(L, fullName);
    lua_pushcclosure(L, guarded<callPackageFunction>, nameUpvalue);
}

std::string_view calledName(lua_State* L, int index)
{
    lua_CFunction const function = lua_tocfunction(L, index);
    if (function != guarded<callMember> && function != guarded<callPackageFunction>)
        return {};
    lua_getupvalue(L, index, nameUpvalue);
    std::string_view const name = textAt(L, -1);
    lua_pop(L, 1); // the function still holds it
    return name;
}

} // namespace velmara::console
