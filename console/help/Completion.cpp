#include "help/Completion.hpp"

#include "arrays/ArrayMethods.hpp"
#include "bindings/ProxyBinding.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "help/ConsoleFunctions.hpp"
#include "help/Expression.hpp"
#include "help/HelpText.hpp"
#include "help/StaticValue.hpp"
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

/// The members that a script writes with the separator after what the steps give.
Names membersOf(lua_State* L, std::vector<ExpressionStep> const& steps, char separator)
{
    Names names;
    if (steps.empty())
        return names;
    StaticValue const value(L, steps);
    if (std::string const name = value.objectClass(); !name.empty())
        addMembers(L, name, true, separator, names);
    else if (std::string const proxied(proxyName(L, value.index())); !proxied.empty())
        addPublished(L, proxied, names);
    else if (lua_istable(L, value.index()))
        addKeys(L, value.index(), names);
    else if (separator == ':' && isHostArray(L, value.index()))
        std::ranges::transform(arrayMethods(), std::back_inserter(names), &ArrayMethod::name);
    else if (separator == ':' && lua_type(L, value.index()) == LUA_TSTRING &&
             lua_getglobal(L, LUA_STRLIBNAME) == LUA_TTABLE)
        addKeys(L, lua_gettop(L), names);
    return names;
}

Names namesInScope(lua_State* L)
{
    Names names(std::begin(keywords), std::end(keywords));
    lua_pushglobaltable(L);
    addKeys(L, lua_gettop(L), names);
    addPublished(L, {}, names);
    return names;
}

/// A question, and the lines or names of its answer.
struct Request {
    std::string_view text;
    Names found;
};

int findCompletions(lua_State* L)
{
    Request& request = *static_cast<Request*>(lua_touserdata(L, 1));
    std::size_t const length = identifierLength(request.text);
    std::string_view before = request.text.substr(0, request.text.size() - length);
    std::string_view const begun = request.text.substr(before.size());
    bool const isMember = (before.ends_with('.') && !before.ends_with("..")) || before.ends_with(':');
    char const separator = isMember ? before.back() : ' ';
    before.remove_suffix(isMember ? 1 : 0);
    for (std::string& name : isMember ? membersOf(L, expressionAtEnd(before), separator) : namesInScope(L))
        if (name.starts_with(begun))
            request.found.push_back(std::move(name));
    return 0;
}

/// "name(a, b)" of the Lua function at `index`.
std::string functionSignature(lua_State* L, int index, std::string_view name)
{
    std::string text = std::string(name) + '(';
    lua_pushvalue(L, index);
    for (int i = 1; char const* parameter = lua_getlocal(L, nullptr, i); ++i)
        text.append(i > 1 ? ", " : "").append(parameter);
    lua_Debug function;
    lua_pushvalue(L, index);
    lua_getinfo(L, ">u", &function);
    if (function.isvararg)
        text.append(text.ends_with('(') ? "..." : ", ...");
    return text + ')';
}

/// The method of a host array that the steps name; null when they name something else.
ArrayMethod const* namedArrayMethod(lua_State* L, std::span<ExpressionStep const> steps)
{
    std::span<ArrayMethod const> const methods = arrayMethods();
    auto const method = std::ranges::find(methods, steps.back().text, &ArrayMethod::name);
    if (method == methods.end() || !isHostArray(L, StaticValue(L, steps.first(steps.size() - 1)).index()))
        return nullptr;
    return &*method;
}

int findSignatures(lua_State* L)
{
    Request& request = *static_cast<Request*>(lua_touserdata(L, 1));
    std::vector<ExpressionStep> const steps = expressionAtEnd(beforeOpenCall(request.text));
    if (steps.empty())
        return 0;
    if (ArrayMethod const* method = namedArrayMethod(L, steps))
        request.found.emplace_back(method->signature);
    StaticValue const value(L, steps);
    if (ConsoleFunction const* function = consoleFunctionAt(L, value.index()))
        request.found.emplace_back(function->signature);
    for (MethodRecord const& overload : value.overloads())
        request.found.push_back(signatureText(overload));
    if (request.found.empty() && lua_isfunction(L, value.index()) && !lua_iscfunction(L, value.index()))
        request.found.push_back(functionSignature(L, value.index(), steps.back().text));
    return 0;
}

/// What `find` finds for the text. It is called by `lua_pcall`, so that errors do not reach the line editor.
Names ask(lua_State* L, lua_CFunction find, std::string_view text)
{
    Request request{text, {}};
    lua_pushcfunction(L, find);
    lua_pushlightuserdata(L, &request);
    if (lua_pcall(L, 1, 0, 0) != LUA_OK)
        lua_pop(L, 1);
    return request.found;
}

} // namespace

std::vector<std::string> completions(lua_State* L, std::string_view text)
{
    Names found = ask(L, guarded<findCompletions>, text);
    std::ranges::sort(found);
    auto const repeated = std::ranges::unique(found);
    found.erase(repeated.begin(), repeated.end());
    return found;
}

std::vector<std::string> signaturesAt(lua_State* L, std::string_view text)
{
    std::size_t const last = text.find_last_not_of(' ');
    bool const isArgumentNext = last != text.npos && (text[last] == '(' || text[last] == '{' || text[last] == ',');
    return isArgumentNext ? ask(L, guarded<findSignatures>, text) : Names();
}

std::string commonStart(std::vector<std::string> const& names)
{
    std::string start = names.front();
    for (std::string const& name : names)
        start.resize(static_cast<std::size_t>(std::ranges::mismatch(start, name).in1 - start.begin()));
    return start;
}

} // namespace velmara::console
