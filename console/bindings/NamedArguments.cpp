#include "bindings/NamedArguments.hpp"

#include "bindings/MemberRecords.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"
#include "text/CloseMatches.hpp"
#include "values/TableElements.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace velmara::console {

namespace {

using Form = std::vector<ParameterRecord>;
using Names = std::vector<std::string>;

void addForm(Member& callable, MethodRecord const& method)
{
    if (!isListed(method))
        return;
    auto const parameters = parametersOf(method);
    callable.forms.emplace_back(parameters.begin(), parameters.end());
}

void describeFunction(Hvm& hvm, Member& function)
{
    std::string const& fullName = function.name.owner();
    std::size_t const dot = fullName.rfind('.');
    PackageRecord const package = hvm.describePackage(dot == fullName.npos ? std::string() : fullName.substr(0, dot));
    for (MethodRecord const& record : package.functions)
        if (record.name == fullName.substr(dot + 1))
            addForm(function, record);
}

void describeMember(Hvm& hvm, Member& member)
{
    if (member.name.member().empty())
        return describeFunction(hvm, member);
    for (MethodRecord const& method : hvm.describeClass(member.name.owner()).methods)
        if (method.name == member.name.member() && method.kind != MethodRecord::Kind::Constructor)
            addForm(member, method);
}

void describeConstructors(Hvm& hvm, Member& constructors)
{
    for (MethodRecord const& method : hvm.describeClass(constructors.name.owner()).methods)
        if (method.kind == MethodRecord::Kind::Constructor)
            addForm(constructors, method);
}

bool has(Form const& form, std::string const& name)
{
    return std::ranges::find(form, name, &ParameterRecord::name) != form.end();
}

/// Whether the names are parameters of the form, and none is missing that is needed.
bool isCalledWith(Form const& form, Names const& names)
{
    bool const areParameters = std::ranges::all_of(names, [&](std::string const& name) { return has(form, name); });
    return areParameters && std::ranges::all_of(form, [&](ParameterRecord const& parameter) {
               return parameter.isOptional || std::ranges::binary_search(names, parameter.name);
           });
}

bool isInOrderOf(Form const& form, Form const& other)
{
    return std::ranges::equal(form, other, {}, &ParameterRecord::name, &ParameterRecord::name);
}

bool takesTable(Form const& form)
{
    return form.size() == 1 && form.front().isConverted;
}

std::string describe(Member const& callable)
{
    std::string text;
    for (Form const& form : callable.forms) {
        text += "\n  " + callable.fullName() + '{';
        for (std::size_t i = 0; i < form.size(); ++i)
            text += (i == 0 ? "" : ", ") + form[i].name;
        text += '}';
    }
    return text;
}

/// The parameters that are missing in the first form that has all the names: "minutes and seconds".
std::string missingIn(Member const& callable, Names const& names)
{
    std::string missing;
    for (Form const& form : callable.forms) {
        if (!std::ranges::all_of(names, [&](std::string const& name) { return has(form, name); }))
            continue;
        for (ParameterRecord const& parameter : form)
            if (!parameter.isOptional && !std::ranges::binary_search(names, parameter.name))
                missing += (missing.empty() ? "" : " and ") + parameter.name;
        break;
    }
    return missing;
}

[[noreturn]] void failNoForm(Member const& callable, Names const& names)
{
    Names known;
    for (Form const& form : callable.forms)
        for (ParameterRecord const& parameter : form)
            if (std::ranges::find(known, parameter.name) == known.end())
                known.push_back(parameter.name);
    std::string reason = " has no form with all of these names";
    std::string suggestion;
    if (std::string const missing = missingIn(callable, names); !missing.empty())
        reason = " needs " + missing + " as well";
    for (std::string const& name : names)
        if (std::ranges::find(known, name) == known.end()) {
            reason = " has no parameter '" + name + "'";
            suggestion = didYouMean(name, known);
        }
    fail("argument", callable.fullName() + reason + (suggestion.empty() ? "." : suggestion) +
                         " It is called with:" + describe(callable));
}

Form const& findForm(Member const& callable, Names const& names)
{
    Form const* found = nullptr;
    for (Form const& form : callable.forms) {
        if (!isCalledWith(form, names))
            continue;
        if (found && found->size() == form.size() && !isInOrderOf(*found, form))
            fail("argument", callable.fullName() +
                                 " has several forms with these names, whose order tells them apart: "
                                 "call it without names" +
                                 describe(callable));
        if (!found || form.size() < found->size())
            found = &form;
    }
    if (!found)
        failNoForm(callable, names);
    return *found;
}

/// The names when the arguments are one table of named values; else none.
Names namesIn(lua_State* L, int first)
{
    if (lua_gettop(L) != first || !lua_istable(L, first))
        return {};
    if (lua_getmetatable(L, first) != 0) {
        lua_pop(L, 1);
        return {};
    }
    return textKeysOf(L, first);
}

template <class Describe>
void spread(lua_State* L, int first, Member& callable, Describe const& describe)
{
    Names const names = namesIn(L, first);
    if (names.empty())
        return;
    Hvm& hvm = HostContext::of(L).hvm();
    if (callable.formsPublication != hvm.publicationNumber()) {
        callable.forms.clear();
        describe(hvm, callable);
        callable.formsPublication = hvm.publicationNumber();
    }
    if (callable.forms.empty() || std::ranges::any_of(callable.forms, takesTable))
        return;
    Form const& form = findForm(callable, names);
    luaL_checkstack(L, static_cast<int>(form.size()) + 2, "too many inputs");
    for (ParameterRecord const& parameter : form) {
        pushText(L, parameter.name);
        lua_rawget(L, first);
    }
    lua_remove(L, first);
}

} // namespace

void spreadNamedArguments(lua_State* L, int first, Member& callable)
{
    spread(L, first, callable, describeMember);
}

void spreadConstructorArguments(lua_State* L, int first, Member& constructors)
{
    spread(L, first, constructors, describeConstructors);
}

} // namespace velmara::console
