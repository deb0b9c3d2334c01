#include "bindings/ClassMembers.hpp"

#include "bindings/MemberRecords.hpp"
#include "bindings/NamedArguments.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "text/CloseMatches.hpp"
#include "values/HostCall.hpp"

#include "libhv/libhv.hpp"

#include <algorithm>
#include <string>

namespace velmara::console {

namespace {

/// Upvalue 1 of the functions below.
Member& calledMember(lua_State* L)
{
    return *static_cast<Member*>(lua_touserdata(L, lua_upvalueindex(1)));
}

/// The object that the member is called on; null when it is called without one.
hvArray_tag* firstObject(lua_State* L, Member const& member, Hvm& hvm)
{
    hvArray_tag* const object = member.isCalledOnObjects ? testObject(L, 1) : nullptr;
    if (!object || !member.isCalledOnClass) [[likely]]
        return object;
    // The name is also that of a static method: the object is the method's only if it is of the class.
    Hvm::Scope const scope(hvm);
    return hvIsA(object, member.name.owner().c_str()) ? object : nullptr;
}

int callStatic(lua_State* L, HostCall& call, Member& member)
{
    Value result = call.hvm().callStatic(member.name, call.values(1), call.failure());
    Hvm::Failure& failure = call.failure();
    if (failure && isObject(L, 1) && objectClass(L, 1) == member.name.owner() &&
        failure->identifier() == "VELMARA:dispatch:noMatch")
        failure = Error(failure->identifier(), failure->text() + "\n  \"" + member.name.member() +
                                                   "\" is static: write " + member.fullName() + "(...), with a dot");
    return call.finish(std::move(result));
}

int callMember(lua_State* L)
{
    Member& member = calledMember(L);
    HostCall call(L);
    if (hvArray_tag* const object = firstObject(L, member, call.hvm())) [[likely]] {
        call.share(object);
        spreadNamedArguments(L, 2, member);
        return call.finish(call.hvm().call(object, member.name, call.values(2), call.failure()));
    }
    if (member.isCalledOnClass) {
        spreadNamedArguments(L, 1, member);
        return callStatic(L, call, member);
    }
    std::string const& name = member.name.member();
    fail("noObject", name + " needs an object of " + member.name.owner() + " first: write object:" + name + "(...)");
}

int callPackageFunction(lua_State* L)
{
    Member& function = calledMember(L);
    spreadNamedArguments(L, 1, function);
    HostCall call(L);
    return call.finish(call.hvm().callFunction(function.name, call.values(1), call.failure()));
}

void pushCallable(lua_State* L, Member& member)
{
    lua_pushlightuserdata(L, &member);
    lua_pushcclosure(L, guarded<callMember>, 1);
}

[[noreturn]] void failUnknown(ClassRecord const& cls, std::string_view name)
{
    fail("unknownMember", cls.name + " has no member '" + std::string(name) + "'" + didYouMean(name, memberNames(cls)));
}

/// Pushes what is cached of the member: the function of a callable one, the record of another.
void pushCacheEntry(lua_State* L, std::string_view cls, std::string_view name)
{
    HostContext& context = HostContext::of(L);
    ClassRecord const record = context.hvm().describeClass(cls);
    Member& member = context.members().ofClass(cls, name);
    auto const isCalled = [&](MethodRecord::Kind kind) {
        return std::ranges::any_of(
            record.methods, [&](MethodRecord const& method) { return method.name == name && method.kind == kind; });
    };
    member.isCalledOnObjects = isCalled(MethodRecord::Kind::Method);
    member.isCalledOnClass = isCalled(MethodRecord::Kind::StaticMethod);
    member.kind = MemberKind::Callable;
    if (member.isCalledOnObjects || member.isCalledOnClass)
        return pushCallable(L, member);
    auto const property = std::ranges::find(record.properties, name, &PropertyRecord::name);
    if (std::ranges::find(record.enumerators, name, &EnumeratorRecord::name) != record.enumerators.end())
        member.kind = MemberKind::Enumerator;
    else if (property != record.properties.end())
        member.kind = property->isStatic ? MemberKind::StaticProperty : MemberKind::Property;
    else
        failUnknown(record, name);
    lua_pushlightuserdata(L, &member);
}

} // namespace

void pushMemberCache(lua_State* L, std::string_view className)
{
    HostContext::of(L).answers().members.push(L);
    pushCached(L, lua_gettop(L), className, [L] { lua_newtable(L); });
    lua_remove(L, -2);
}

MemberKind pushMember(lua_State* L, std::string_view className, std::string_view name)
{
    luaL_checkstack(L, 10, nullptr);
    pushMemberCache(L, className);
    pushCached(L, lua_gettop(L), name, [&] { pushCacheEntry(L, className, name); });
    lua_remove(L, -2);
    if (lua_isfunction(L, -1))
        return MemberKind::Callable;
    MemberKind const kind = static_cast<Member const*>(lua_touserdata(L, -1))->kind;
    lua_pop(L, 1);
    return kind;
}

bool pushFormerCallable(lua_State* L, std::string_view className, std::string_view name)
{
    luaL_checkstack(L, 4, nullptr);
    Member& member = HostContext::of(L).members().ofClass(className, name);
    bool const wasCallable = member.isCalledOnObjects || member.isCalledOnClass;
    if (wasCallable)
        pushCallable(L, member);
    return wasCallable;
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
    lua_pushlightuserdata(L, &HostContext::of(L).members().function(fullName));
    lua_pushcclosure(L, guarded<callPackageFunction>, 1);
}

std::string calledName(lua_State* L, int index)
{
    lua_CFunction const function = lua_tocfunction(L, index);
    if (function != guarded<callMember> && function != guarded<callPackageFunction>)
        return {};
    lua_getupvalue(L, index, 1);
    auto const* const member = static_cast<Member const*>(lua_touserdata(L, -1));
    lua_pop(L, 1);
    return member->fullName();
}

} // namespace velmara::console
