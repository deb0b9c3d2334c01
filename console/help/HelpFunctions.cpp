#include "help/HelpFunctions.hpp"

#include "bindings/MemberRecords.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/ValueText.hpp"
#include "help/Apropos.hpp"
#include "help/ArrayHelp.hpp"
#include "help/ConsoleFunctions.hpp"
#include "help/Enumerations.hpp"
#include "help/GeneralHelp.hpp"
#include "help/HelpText.hpp"
#include "help/Overview.hpp"
#include "help/Subject.hpp"
#include "help/ValueHelp.hpp"
#include "lua/ScriptError.hpp"
#include "terminal/Pager.hpp"
#include "text/Paragraph.hpp"

#include <string>

namespace velmara::console {

namespace {

/// The name of a package, a class, or an object's class, which the value at 1 has or means.
std::string checkSubject(lua_State* L)
{
    std::string name = subjectOf(L, 1);
    if (name.empty())
        fail("noHelp", "there is no help on " + kindAt(L, 1) +
                           ": ask for a package, a class, an object, or the name of one in quotes");
    return name;
}

/// Help on "CLASS.MEMBER" or "PACKAGE.FUNCTION"; empty when there is no such thing.
std::string memberHelp(Hvm& hvm, std::string const& name)
{
    std::size_t const dot = name.rfind('.');
    std::string const owner = dot == name.npos ? std::string() : name.substr(0, dot);
    std::string const member = name.substr(dot + 1); // the whole name when there is no dot
    if (hvm.lookUp(name) == NameKind::Function) {
        PackageRecord const package = hvm.describePackage(owner);
        return helpText(package, member) + enumerationsText(hvm, package, member);
    }
    if (hvm.lookUp(owner) != NameKind::Class)
        return {};
    ClassRecord const cls = hvm.describeClass(owner);
    std::string const text = helpText(cls, member);
    return text.empty() ? text : text + enumerationsText(hvm, cls, member);
}

std::string publishedHelp(Hvm& hvm, std::string const& name)
{
    switch (hvm.lookUp(name)) {
    case NameKind::Package:
        return helpText(hvm.describePackage(name));
    case NameKind::Class: {
        ClassRecord const cls = hvm.describeClass(name);
        return helpText(cls) + enumerationsText(hvm, cls);
    }
    default:
        return memberHelp(hvm, name);
    }
}

std::string consoleHelp(ConsoleFunction const& function)
{
    return paragraph(function.signature, 0, 2) + paragraph(function.text, 2, 2);
}

/// Help on what a script means by a name such as "string.format" or "object.property"; empty when that is nothing.
std::string globalHelp(lua_State* L, std::string_view name)
{
    Hvm& hvm = HostContext::of(L).hvm();
    lua_pushglobaltable(L);
    while (lua_istable(L, -1)) {
        std::string_view const part = name.substr(0, name.find('.'));
        pushText(L, part);
        lua_rawget(L, -2);
        std::string const subject = lua_isstring(L, -1) ? std::string() : subjectOf(L, -1);
        if (!subject.empty())
            return publishedHelp(hvm, std::string(subject).append(name.substr(part.size())));
        if (part.size() == name.size())
            return lua_isnil(L, -1) ? std::string() : valueHelp(L, -1);
        name.remove_prefix(part.size() + 1);
    }
    return {};
}

/// Help on the value at 1.
std::string helpOn(lua_State* L)
{
    std::string const name = subjectOf(L, 1);
    if (name.empty()) {
        if (ConsoleFunction const* function = consoleFunctionAt(L, 1))
            return consoleHelp(*function);
        if (lua_isnil(L, 1))
            fail("noHelp", "there is no help on nil: help(\"name\") finds names that are like one");
        return valueHelp(L, 1);
    }
    if (std::string text = publishedHelp(HostContext::of(L).hvm(), name); !text.empty())
        return text;
    if (ConsoleFunction const* function = findConsoleFunction(name))
        return consoleHelp(*function);
    if (std::string text = globalHelp(L, name); !text.empty())
        return text;
    failUnknownSubject(L, name);
}

int help(lua_State* L)
{
    Hvm& hvm = HostContext::of(L).hvm();
    printPaged(L, lua_gettop(L) == 0 ? generalHelp + overviewText(hvm) : helpOn(L));
    return 0;
}

int members(lua_State* L)
{
    Hvm& hvm = HostContext::of(L).hvm();
    luaL_checkany(L, 1);
    std::string const name = checkSubject(L);
    switch (hvm.lookUp(name)) {
    case NameKind::Class:
        pushMembers(L, hvm.describeClass(name));
        return 1;
    case NameKind::Package:
        pushMembers(L, hvm.describePackage(name));
        return 1;
    default:
        failUnknownSubject(L, name);
    }
}

int apropos(lua_State* L)
{
    std::size_t length = 0;
    char const* const wanted = luaL_checklstring(L, 1, &length);
    std::string const text = aproposText(HostContext::of(L).hvm(), {wanted, length});
    printPaged(L,
               text.empty() ? "nothing has '" + std::string(wanted, length) + "' in its name or description\n" : text);
    return 0;
}

/// Prints one list of a class or, where it has one, of a package.
int printList(lua_State* L, std::string (*ofClass)(ClassRecord const&), std::string (*ofPackage)(PackageRecord const&))
{
    Hvm& hvm = HostContext::of(L).hvm();
    std::string const name = checkSubject(L);
    std::string text;
    switch (hvm.lookUp(name)) {
    case NameKind::Class: {
        ClassRecord const cls = hvm.describeClass(name);
        text = ofClass(cls);
        text += text.empty() ? text : enumerationsText(hvm, cls);
        break;
    }
    case NameKind::Package:
        text = ofPackage(hvm.describePackage(name));
        break;
    default:
        failUnknownSubject(L, name);
    }
    printPaged(L, text.empty() ? name + " has none\n" : text);
    return 0;
}

int methods(lua_State* L)
{
    if (isHostArray(L, 1)) {
        printPaged(L, arrayMethodsText());
        return 0;
    }
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
    lua_register(L, "members", guarded<members>);
    lua_register(L, "apropos", guarded<apropos>);
    recordConsoleFunctions(L);
}

} // namespace velmara::console
