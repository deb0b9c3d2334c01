#include "help/HelpFunctions.hpp"

#include "bindings/ClassMembers.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "help/GeneralHelp.hpp"
#include "help/HelpText.hpp"
#include "lua/ScriptError.hpp"

#include <cstdio>
#include <string>

namespace velmara::console {

namespace {

void print(std::string const& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

/// The dotted name of the value at 1: of a package, a class, an object's class or a function; a string is a name
/// itself.
std::string subject(lua_State* L)
{
    std::string name;
    if (isObject(L, 1))
        name = objectClass(L, 1);
    else if (lua_type(L, 1) == LUA_TSTRING)
        name = textAt(L, 1);
    else if (name = proxyName(L, 1); name.empty())
        name = calledName(L, 1);
    if (name.empty())
        fail("noHelp", "there is no help on " + kindAt(L, 1) +
                           ": ask for a package, a class, an object, a method, or a name in quotes");
    return name;
}

/// Help on "CLASS.MEMBER" or "PACKAGE.FUNCTION"; empty when there is no such thing.
std::string memberHelp(Hvm& hvm, std::string const& name)
{
    std::size_t const dot = name.rfind('.');
    std::string const owner = dot == name.npos ? std::string() : name.substr(0, dot);
    std::string const member = name.substr(dot + 1); // the whole name when there is no dot
    if (hvm.lookUp(name) == NameKind::Function)
        return helpText(hvm.describePackage(owner), member);
    return hvm.lookUp(owner) == NameKind::Class ? helpText(hvm.describeClass(owner), member) : std::string();
}

int help(lua_State* L)
{
    Hvm& hvm = HostContext::of(L).hvm();
    if (lua_gettop(L) == 0) {
        print(generalHelp + helpText(hvm.describePackage("")));
        return 0;
    }
    std::string const name = subject(L);
    switch (hvm.lookUp(name)) {
    case NameKind::Package:
        print(helpText(hvm.describePackage(name)));
        return 0;
    case NameKind::Class:
        print(helpText(hvm.describeClass(name)));
        return 0;
    default:
        break;
    }
    std::string const text = memberHelp(hvm, name);
    if (text.empty())
        fail("unknownName", "nothing is published as '" + name + "'");
    print(text);
    return 0;
}

/// Prints one list of a class or, where it has one, of a package.
int printList(lua_State* L, std::string (*ofClass)(ClassRecord const&), std::string (*ofPackage)(PackageRecord const&))
{
    Hvm& hvm = HostContext::of(L).hvm();
    std::string const name = subject(L);
    std::string text;
    switch (hvm.lookUp(name)) {
    case NameKind::Class:
        text = ofClass(hvm.describeClass(name));
        break;
    case NameKind::Package:
        text = ofPackage(hvm.describePackage(name));
        break;
    default:
        fail("unknownName", "no class or package is published as '" + name + "'");
    }
    print(text.empty() ? name + " has none\n" : text);
    return 0;
}

int methods(lua_State* L)
{
    return printList(L, methodsText, functionsText);
}

int properties(lua_State* L)
{
    return printList(L, propertiesText, [](PackageRecord const&) { return std::string(); });
}

} // namespace

void bindHelpFunctions(lua_State* L)
{
    lua_register(L, "help", guarded<help>);
    lua_register(L, "methods", guarded<methods>);
    lua_register(L, "properties", guarded<properties>);
}

} // namespace velmara::console
