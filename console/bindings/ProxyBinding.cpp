#include "bindings/ProxyBinding.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/MemberIteration.hpp"
#include "bindings/NamedArguments.hpp"
#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "text/CloseMatches.hpp"
#include "values/HostCall.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

/// Upvalue 1 of the functions of a proxy's metatable.
NameRecord& nameRecord(lua_State* L)
{
    return *static_cast<NameRecord*>(lua_touserdata(L, lua_upvalueindex(1)));
}

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

/// Keeps the value on top of the stack under the key at 2 in the table at 1, the known contents of a name, which Lua
/// asks before the function that was called for the key.
void keepContent(lua_State* L)
{
    lua_pushvalue(L, 2);
    lua_pushvalue(L, -2);
    lua_rawset(L, 1);
}

/// What is published under the name. Throws an `Error` when that is nothing any more.
NameKind checkKind(lua_State* L, NameRecord& name)
{
    NameKind const kind = name.kind(HostContext::of(L).hvm());
    if (kind == NameKind::None)
        fail("unknownName", name.text() + " is not published any more");
    return kind;
}

std::string checkKey(lua_State* L, NameRecord const& name)
{
    if (lua_type(L, 2) != LUA_TSTRING)
        fail("unknownName", name.text() + " is indexed with a name, not with " + valueText(L, 2));
    return std::string(textAt(L, 2));
}

[[noreturn]] void failWithoutObject(std::string const& className, std::string const& property)
{
    fail("noObject", className + '.' + property + " is a property of the class's objects: write object." + property);
}

int readClassMember(lua_State* L, std::string const& className, std::string const& member)
{
    MemberKind const kind = pushMember(L, className, member);
    if (kind == MemberKind::Callable) {
        keepContent(L);
        return 1;
    }
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

/// What is not known yet of a name: its known contents are at 1.
int readProxy(lua_State* L)
{
    NameRecord& name = nameRecord(L);
    std::string const key = checkKey(L, name);
    if (checkKind(L, name) == NameKind::Class)
        return readClassMember(L, name.text(), key);
    if (key.find('.') == key.npos && pushName(L, name.text() + '.' + key)) {
        keepContent(L);
        return 1;
    }
    PackageRecord const package = HostContext::of(L).hvm().describePackage(name.text());
    fail("unknownName", "package " + name.text() + " has no '" + key + "'" + didYouMean(key, packageContents(package)));
}

int writeProxy(lua_State* L)
{
    NameRecord& name = nameRecord(L);
    std::string const key = checkKey(L, name);
    if (checkKind(L, name) != NameKind::Class)
        fail("readOnly", "package " + name.text() + " cannot be changed by a script");
    return writeClassMember(L, name.text(), key);
}

int callProxy(lua_State* L)
{
    NameRecord& name = nameRecord(L);
    if (checkKind(L, name) != NameKind::Class)
        fail("notCallable", "package " + name.text() + " cannot be called: a class of it can");
    spreadConstructorArguments(L, 2, name.constructors());
    HostCall call(L);
    return call.finish(call.hvm().construct(name.constructors().name, call.values(2), call.failure()));
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
    Hvm& hvm = HostContext::of(L).hvm();
    if (checkKind(L, nameRecord(L)) != NameKind::Class)
        return iterateNames(L, packageContents(hvm.describePackage(name)));
    ClassRecord const cls = hvm.describeClass(name);
    if (!cls.isEnumeration)
        return iterateMembers(L, cls);
    std::vector<std::string> names;
    names.reserve(cls.enumerators.size());
    for (EnumeratorRecord const& enumerator : cls.enumerators)
        names.push_back(enumerator.name);
    return iterateNames(L, names);
}

/// A global that the script has not set, and that is not known yet: the known ones are at 1.
int readGlobal(lua_State* L)
{
    std::string_view const name = textAt(L, 2);
    if (name.empty() || name.find('.') != name.npos || !pushName(L, std::string(name)))
        lua_pushnil(L);
    else
        keepContent(L);
    return 1;
}

/// Sets `__index` of the metatable on top of the stack: to a table of the contents that are known, which is emptied
/// when what is published changes. It belongs to the table at the absolute `owner`, and has for others `read`, a
/// function on top of the metatable, which is popped.
void setContents(lua_State* L, int owner)
{
    lua_createtable(L, 0, 1);
    lua_insert(L, -2);
    lua_setfield(L, -2, "__index");
    lua_newtable(L);
    lua_insert(L, -2);
    lua_setmetatable(L, -2);
    HostContext::of(L).answers().contents.push(L);
    lua_pushvalue(L, owner);
    lua_pushvalue(L, -3);
    lua_rawset(L, -3);
    lua_pop(L, 1);
    lua_setfield(L, -2, "__index");
}

/// Completes the metatable, argument 1, of a proxy, argument 2, with functions for its name, argument 3.
int completeProxy(lua_State* L)
{
    struct Metamethod {
        char const* name;
        lua_CFunction function;
    };
    constexpr Metamethod metamethods[] = {{"__newindex", guarded<writeProxy>},
                                          {"__call", guarded<callProxy>},
                                          {"__pairs", guarded<iterateProxy>},
                                          {"__tostring", guarded<showProxy>}};
    for (auto const& [name, function] : metamethods) {
        lua_pushvalue(L, 3);
        lua_pushcclosure(L, function, 1);
        lua_setfield(L, 1, name);
    }
    lua_pushvalue(L, 1);
    lua_pushvalue(L, 3);
    lua_pushcclosure(L, guarded<readProxy>, 1);
    setContents(L, 2);
    return 0;
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
    std::ranges::sort(names);
    names.erase(std::ranges::unique(names).begin(), names.end());
    return names;
}

void bindPublishedNames(lua_State* L)
{
    completeProxiesWith(L, guarded<completeProxy>);
    lua_pushglobaltable(L);
    int const globals = lua_gettop(L);
    lua_createtable(L, 0, 1);
    lua_pushcfunction(L, guarded<readGlobal>);
    setContents(L, globals);
    lua_setmetatable(L, globals);
    lua_pop(L, 1);
}

} // namespace velmara::console
