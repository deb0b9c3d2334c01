#include "help/ValueHelp.hpp"

#include "arrays/ArrayMethods.hpp"
#include "arrays/ArrayText.hpp"
#include "handles/HostArray.hpp"
#include "handles/ValueText.hpp"
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

std::string methodHelp(ArrayMethod const& method, std::size_t indent)
{
    return paragraph(method.signature, indent, indent + 2) + paragraph(method.text, indent + 2, indent + 2);
}

std::string arrayHelp(hvArray_tag const* array)
{
    std::string text = paragraph("an array, " + sizeAndClass(array) +
                                     "; see help(\"array\"). Its methods are of all elements, or where they take a "
                                     "dimension, 1: of each column, 2: of each row.",
                                 0, 2);
    for (ArrayMethod const& method : arrayMethods())
        text += methodHelp(method, 2);
    return text;
}

/// Help on a method of arrays; empty for other functions.
std::string arrayMethodHelp(lua_CFunction function)
{
    for (ArrayMethod const& method : arrayMethods())
        if (function == method.function)
            return methodHelp(method, 0);
    return {};
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
    if (hvArray_tag const* const array = testHostArray(L, index))
        return arrayHelp(array);
    if (std::string text = arrayMethodHelp(lua_tocfunction(L, index)); !text.empty())
        return text;
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
