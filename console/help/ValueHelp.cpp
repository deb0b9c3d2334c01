#include "help/ValueHelp.hpp"

#include "arrays/ArrayText.hpp"
#include "handles/HostArray.hpp"
#include "handles/ValueText.hpp"
#include "help/ArrayHelp.hpp"
#include "lua/ScriptError.hpp"
#include "text/Paragraph.hpp"
#include "values/ValueToHost.hpp"

namespace velmara::console {

namespace {

/// "f(a, b, ...)", as far as the function tells.
std::string parametersText(lua_State* L, int index, lua_Debug const& function)
{
    std::string text = "(";
    for (int i = 1; i <= function.nparams; ++i) {
        lua_pushvalue(L, index);
        text.append(i > 1 ? ", " : "").append(lua_getlocal(L, nullptr, i)); // pops the function
    }
    return text + (function.isvararg ? (function.nparams > 0 ? ", ...)" : "...)") : ")");
}

std::string functionHelp(lua_State* L, int index)
{
    lua_Debug function;
    lua_pushvalue(L, index);
    lua_getinfo(L, ">Su", &function);
    if (std::string_view(function.what) == "C")
        return "a function of Lua: its manual explains it";
    return "a function of the script with the parameters " + parametersText(L, index, function) + ", at " +
           function.short_src + ':' + std::to_string(function.linedefined);
}

/// "double 1x3", or why it is nothing.
std::string hostText(lua_State* L, int index)
{
    try {
        return "a module gets it as " + sizeAndClass(toHost(L, index).get());
    } catch (Error const& error) {
        return "no module can be given it: " + error.text().substr(0, error.text().find('\n'));
    }
}

} // namespace

std::string valueHelp(lua_State* L, int index)
{
    index = lua_absindex(L, index);
    luaL_checkstack(L, 4, nullptr);
    if (ArrayMethod const* const method = arrayMethodAt(L, index))
        return paragraph(method->signature, 0, 2) + paragraph(method->text, 2, 2);
    if (hvArray_tag const* const array = isHostArray(L, index) ? testHostArray(L, index) : nullptr)
        return "an array: " + sizeAndClass(array) + '\n' + arrayMethodsText();
    std::string text = kindAt(L, index);
    if (lua_isfunction(L, index))
        text = functionHelp(L, index);
    else if (isError(L, index))
        text = "an error: its fields are identifier, text and where";
    else
        text += "; " + hostText(L, index) + (lua_istable(L, index) ? "; show(x) prints what it holds" : "");
    return paragraph(text, 0, 2);
}

} // namespace velmara::console
