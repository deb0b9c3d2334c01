#include "bindings/ProxyBinding.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/MemberIteration.hpp"
#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/PublishedAnswers.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "text/CloseMatches.hpp"
#include "values/HostCall.hpp"

namespace velmara::console {

namespace {

/// Pushes the value of a published name; false when there is none of that name.
bool pushName(lua_State* L, std::string const& fullName)
{
    switch (HostContext::of(L).hvm().lookUp(fullName)) {
    case NameKind::Package:
    case NameKind::Class:
        pushProxy(L, fullName);
        return true;
    case NameKind::Function:
        pushPackageFunction(L, fullName);
        return true;
    default:
        return false;
    }
}

/// Where what is known of a name has its kind. The keys of its contents are texts.
constexpr lua_Integer kindKey = 0;

/// Pushes what is known of the table at 1, a proxy or the globals: its kind, and its contents by their names. Upvalue 1
/// of all functions for Lua has it by these tables. False, and nil pushed, when nothing is known.
bool pushKnown(lua_State* L)
{
    forgetOutdated(L);
    lua_pushvalue(L, 1);
    return lua_rawget(L, lua_upvalueindex(1)) == LUA_TTABLE;
}

/// Pushes the same, created when it is not there.
void pushContents(lua_State* L)
{
    if (pushKnown(L))
        return;
    lua_pop(L, 1);
    lua_newtable(L);
    lua_pushvalue(L, 1);
    lua_pushvalue(L, -2);
    lua_rawset(L, lua_upvalueindex(1));
}

/// Pushes what is known under the key at 2. Pushes anything else, and returns false, when that is nothing.
bool pushKnownContent(lua_State* L)
{
    if (!pushKnown(L))
        return false;
    lua_pushvalue(L, 2);
    int const type = lua_rawget(L, -2);
    return type == LUA_TFUNCTION || type == LUA_TTABLE;
}

/// Pushes the same from the host, by the full name of the key, and keeps it.
bool pushContent(lua_State* L, std::string const& fullName)
{
    if (!pushName(L, fullName))
        return false;
    pushContents(L);
    lua_pushvalue(L, 2);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3);
    lua_pop(L, 1);
    return true;
}

/// The kind of the name of the proxy at 1. Throws an `Error` when it is not published any more.
NameKind checkKind(lua_State* L)
{
    pushContents(L);
    bool const isKnown = lua_rawgeti(L, -1, kindKey) == LUA_TNUMBER;
    auto kind = static_cast<NameKind>(lua_tointeger(L, -1));
    lua_pop(L, 2);
    if (isKnown)
        return kind;
    std::string const name(proxyName(L, 1));
    kind = HostContext::of(L).hvm().lookUp(name);
    if (kind == NameKind::None)
        fail("unknownName", name + " is not published any more");
    pushContents(L);
    lua_pushinteger(L, static_cast<lua_Integer>(kind));
    lua_rawseti(L, -2, kindKey);
    lua_pop(L, 1);
    return kind;
}

std::string checkKey(lua_State* L)
{
    if (lua_type(L, 2) != LUA_TSTRING)
        fail("unknownName", std::string(proxyName(L, 1)) + " is indexed with a name, not with " + valueText(L, 2));
    return std::string(textAt(L, 2));
}

[[noreturn]] void failWithoutObject(std::string const& className, std::string const& property)
{
    fail("noObject", className + '.' + property + " is a property of the class's objects: write object." + property);
}

int readClassMember(lua_State* L, std::string const& className, std::string const& member)
{
    MemberKind const kind = pushMember(L, className, member);
    if (kind == MemberKind::Callable)
        return 1;
    if (kind == MemberKind::Property)
        failWithoutObject(className, member);
    HostCall call(L);
    if (kind == MemberKind::Enumerator)
        return call.finish(call.hvm().getEnumerator(className, member));
    return call.finish(call.hvm().getStatic(className, member));
}

int writeClassMember(lua_State* L, std::string const& className, std::string const& member)
{
    if (checkProperty(L, className, member) == MemberKind::Property)
        failWithoutObject(className, member);
    HostCall call(L);
    call.hvm().setStatic(className, member, call.inputs(3).front());
    return 0;
}

int readProxy(lua_State* L)
{
    if (pushKnownContent(L))
        return 1;
    std::string const name(proxyName(L, 1));
    std::string const key = checkKey(L);
    if (checkKind(L) == NameKind::Class)
        return readClassMember(L, name, key);
    if (key.find('.') == key.npos && pushContent(L, name + '.' + key))
        return 1;
    PackageRecord const package = HostContext::of(L).hvm().describePackage(name);
    fail("unknownName", "package " + name + " has no '" + key + "'" + didYouMean(key, packageContents(package)));
}

int writeProxy(lua_State* L)
{
    std::string const name(proxyName(L, 1));
    std::string const key = checkKey(L);
    if (checkKind(L) != NameKind::Class)
        fail("readOnly", "package " + name + " cannot be changed by a script");
    return writeClassMember(L, name, key);
}

int callProxy(lua_State* L)
{
    std::string_view const name = proxyName(L, 1);
    if (checkKind(L) != NameKind::Class)
        fail("notCallable", "package " + std::string(name) + " cannot be called: a class of it can");
    HostCall call(L);
    return call.finish(call.hvm().construct(name, call.inputs(2)));
}

int showProxy(lua_State* L)
{
    std::string const name(proxyName(L, 1));
    switch (HostContext::of(L).hvm().lookUp(name)) {
    case NameKind::Package:
        pushText(L, "package " + name);
        break;
    case NameKind::Class:
        pushText(L, "class " + name);
        break;
    default:
        pushText(L, "unpublished " + name);
        break;
    }
    return 1;
}

/// `pairs(package)`: its contents by name; of an enumeration its enumerators, of another class its members.
int iterateProxy(lua_State* L)
{
    std::string const name(proxyName(L, 1));
    if (checkKind(L) == NameKind::Class && !HostContext::of(L).hvm().describeClass(name).isEnumeration)
        return iterateMembers(L);
    lua_getglobal(L, "next");
    lua_newtable(L);
    if (checkKind(L) == NameKind::Class)
        for (EnumeratorRecord const& enumerator : HostContext::of(L).hvm().describeClass(name).enumerators) {
            readClassMember(L, name, enumerator.name);
            lua_setfield(L, -2, enumerator.name.c_str());
        }
    else
        for (std::string const& part : packageContents(HostContext::of(L).hvm().describePackage(name)))
            if (pushName(L, std::string(name).append(1, '.').append(part)))
                lua_setfield(L, -2, part.c_str());
    lua_pushnil(L);
    return 3;
}

int readGlobal(lua_State* L)
{
    if (pushKnownContent(L))
        return 1;
    std::string_view const name = textAt(L, 2);
    if (name.empty() || name.find('.') != name.npos || !pushContent(L, std::string(name)))
        lua_pushnil(L);
    return 1;
}

void setMetamethod(lua_State* L, char const* name, lua_CFunction function)
{
    pushAnswers(L, Answers::Contents);
    lua_pushcclosure(L, function, 1);
    lua_setfield(L, -2, name);
}

} // namespace

std::string unqualifiedName(std::string const& fullName)
{
    return fullName.substr(fullName.rfind('.') + 1);
}

std::vector<std::string> packageContents(PackageRecord const& package)
{
    std::vector<std::string> names;
    names.reserve(package.packages.size() + package.classes.size() + package.functions.size());
    for (std::string const& name : package.packages)
        names.push_back(unqualifiedName(name));
    for (std::string const& name : package.classes)
        names.push_back(unqualifiedName(name));
    for (MethodRecord const& function : package.functions)
        names.push_back(unqualifiedName(function.name));
    return names;
}

void bindPublishedNames(lua_State* L)
{
    pushProxyMetatable(L);
    setMetamethod(L, "__index", guarded<readProxy>);
    setMetamethod(L, "__newindex", guarded<writeProxy>);
    setMetamethod(L, "__call", guarded<callProxy>);
    setMetamethod(L, "__pairs", guarded<iterateProxy>);
    setField(L, "__tostring", guarded<showProxy>);
    lua_pushglobaltable(L);
    lua_createtable(L, 0, 1);
    setMetamethod(L, "__index", guarded<readGlobal>);
    lua_setmetatable(L, -2);
    lua_pop(L, 2);
}

} // namespace velmara::console
