#include "help/Completion.hpp"

#include "arrays/ArrayMethods.hpp"
#include "bindings/ProxyBinding.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "lua/ScriptError.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

using Names = std::vector<std::string>;

constexpr char const* keywords[] = {"and",      "break",  "do",   "else", "elseif", "end",  "false", "for",
                                    "function", "goto",   "if",   "in",   "local",  "nil",  "not",   "or",
                                    "repeat",   "return", "then", "true", "until",  "while"};

void addKeys(lua_State* L, int table, Names& names)
{
    for (lua_pushnil(L); lua_next(L, table); lua_pop(L, 1))
        if (lua_type(L, -2) == LUA_TSTRING)
            names.emplace_back(textAt(L, -2));
}

/// The members that a script writes with `separator` after an object of the class, or after the class itself.
void addMembers(lua_State* L, std::string_view className, bool ofObject, char separator, Names& names)
{
    using Kind = MethodRecord::Kind;
    ClassRecord const record = HostContext::of(L).hvm().describeClass(className);
    for (MethodRecord const& method : record.methods)
        if (method.isVisible && (ofObject ? method.kind == Kind::Method : method.kind != Kind::Constructor))
            names.push_back(method.name);
    for (PropertyRecord const& property : record.properties)
        if (property.isVisible && (ofObject ? separator == '.' : property.isStatic))
            names.push_back(property.name);
    if (!ofObject)
        for (EnumeratorRecord const& enumerator : record.enumerators)
            names.push_back(enumerator.name);
}

void addPublished(lua_State* L, std::string_view name, Names& names)
{
    Hvm& hvm = HostContext::of(L).hvm();
    NameKind const kind = name.empty() ? NameKind::Package : hvm.lookUp(name);
    if (kind == NameKind::Class)
        addMembers(L, name, false, '.', names);
    else if (kind == NameKind::Package)
        std::ranges::copy(packageContents(hvm.describePackage(name)), std::back_inserter(names));
}

/// Replaces the value on top by its member `key`; by nil where only running code could find that.
void descend(lua_State* L, std::string const& key)
{
    if (std::string const name(proxyName(L, -1)); !name.empty())
        pushProxy(L, name + '.' + key);
    else if (lua_istable(L, -1)) {
        pushText(L, key);
        lua_rawget(L, -2);
    } else
        lua_pushnil(L);
    lua_remove(L, -2);
}

/// Pushes the value of the path before the last separator.
void pushOwner(lua_State* L, std::string_view path)
{
    lua_pushglobaltable(L);
    for (bool isFirst = true; !path.empty(); isFirst = false) {
        std::size_t const end = std::min(path.find_first_of(".:"), path.size());
        std::string const part(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
        descend(L, part);
        if (isFirst && lua_isnil(L, -1)) {
            lua_pop(L, 1);
            pushProxy(L, part);
        }
    }
}

Names membersOf(lua_State* L, char separator)
{
    Names names;
    if (isObject(L, -1))
        addMembers(L, objectClass(L, -1), true, separator, names);
    else if (auto const name = proxyName(L, -1); !name.empty())
        addPublished(L, name, names);
    else if (lua_istable(L, -1))
        addKeys(L, lua_gettop(L), names);
    else if (isHostArray(L, -1))
        std::ranges::transform(arrayMethods(), std::back_inserter(names), &ArrayMethod::name);
    return names;
}

struct Request {
    std::string_view word;
    Names found;
};

/// Called by `lua_pcall` with a `Request`, so that errors do not reach the line editor.
int findCompletions(lua_State* L)
{
    Request& request = *static_cast<Request*>(lua_touserdata(L, 1));
    std::size_t const last = request.word.find_last_of(".:");
    std::string_view const before = last == request.word.npos ? std::string_view() : request.word.substr(0, last);
    std::string_view const begun = last == request.word.npos ? request.word : request.word.substr(last + 1);
    pushOwner(L, before);
    Names names = membersOf(L, last == request.word.npos ? '.' : request.word[last]);
    if (last == request.word.npos) {
        names.insert(names.end(), std::begin(keywords), std::end(keywords));
        addPublished(L, {}, names);
    }
    for (std::string const& name : names)
        if (name.starts_with(begun))
            request.found.push_back(std::string(request.word.substr(0, request.word.size() - begun.size())) + name);
    return 0;
}

} // namespace

std::vector<std::string> completions(lua_State* L, std::string_view word)
{
    Request request{word, {}};
    lua_pushcfunction(L, guarded<findCompletions>);
    lua_pushlightuserdata(L, &request);
    if (lua_pcall(L, 1, 0, 0) != LUA_OK)
        lua_pop(L, 1);
    std::ranges::sort(request.found);
    auto const repeated = std::ranges::unique(request.found);
    request.found.erase(repeated.begin(), repeated.end());
    return request.found;
}

std::string commonStart(std::vector<std::string> const& names)
{
    std::string start = names.front();
    for (std::string const& name : names)
        start.resize(static_cast<std::size_t>(std::ranges::mismatch(start, name).in1 - start.begin()));
    return start;
}

} // namespace velmara::console
