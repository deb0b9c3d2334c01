#include "help/Subject.hpp"

#include "bindings/ClassMembers.hpp"
#include "bindings/MemberRecords.hpp"
#include "bindings/ProxyBinding.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "help/PublishedNames.hpp"
#include "lua/ScriptError.hpp"
#include "text/CloseMatches.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

std::vector<std::string> globalNames(lua_State* L)
{
    std::vector<std::string> names;
    luaL_checkstack(L, 4, nullptr);
    lua_pushglobaltable(L);
    for (lua_pushnil(L); lua_next(L, -2) != 0; lua_pop(L, 1))
        if (lua_type(L, -2) == LUA_TSTRING)
            names.emplace_back(textAt(L, -2));
    lua_pop(L, 1);
    return names;
}

/// The names of what is in the package or class.
std::vector<std::string> contentsOf(Hvm& hvm, std::string const& owner)
{
    switch (hvm.lookUp(owner)) {
    case NameKind::Package:
        return packageContents(hvm.describePackage(owner));
    case NameKind::Class:
        return memberNames(hvm.describeClass(owner));
    default:
        return {};
    }
}

} // namespace

std::string subjectOf(lua_State* L, int index)
{
    if (isObject(L, index))
        return std::string(objectClass(L, index));
    if (lua_type(L, index) == LUA_TSTRING)
        return std::string(textAt(L, index));
    std::string name(proxyName(L, index));
    return name.empty() ? std::string(calledName(L, index)) : name;
}

void failUnknownSubject(lua_State* L, std::string const& name)
{
    fail("unknownName", "nothing is published as '" + name + "'" + closeNames(L, name));
}

std::string closeNames(lua_State* L, std::string const& name)
{
    Hvm& hvm = HostContext::of(L).hvm();
    std::size_t const dot = name.rfind('.');
    if (dot != name.npos) {
        std::vector<std::string> close = closeMatches(name.substr(dot + 1), contentsOf(hvm, name.substr(0, dot)));
        for (std::string& content : close)
            content.insert(0, name, 0, dot + 1);
        return didYouMean(close);
    }
    std::vector<std::string> known = globalNames(L);
    visitPublished(hvm, [&](PublishedName const& published) { known.push_back(unqualifiedName(published.name)); });
    std::vector<std::string> close = closeMatches(name, known);
    visitPublished(hvm, [&](PublishedName const& published) {
        std::ranges::replace(close, unqualifiedName(published.name), published.name);
    });
    return didYouMean(close);
}

} // namespace velmara::console
