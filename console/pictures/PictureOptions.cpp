#include "pictures/PictureOptions.hpp"

#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "show/Summary.hpp"

namespace velmara::console {

namespace {

[[noreturn]] void refuse(lua_State* L, std::string const& name, char const* wanted)
{
    fail("option", "graph: " + name + " is " + wanted + ", not " + summary(L, -1));
}

lua_Integer countOnTop(lua_State* L, std::string const& name)
{
    int isInteger = 0;
    lua_Integer const count = lua_type(L, -1) == LUA_TNUMBER ? lua_tointegerx(L, -1, &isInteger) : 0;
    if (!isInteger || count < 0)
        refuse(L, name, "an integer from 0 on");
    return count;
}

bool truthOnTop(lua_State* L, std::string const& name)
{
    if (!lua_isboolean(L, -1))
        refuse(L, name, "true or false");
    return lua_toboolean(L, -1) != 0;
}

PictureOptions::Format formatOf(lua_State* L, std::string_view name)
{
    if (name == "dot" || name == "gv")
        return PictureOptions::Format::Dot;
    if (name != "svg")
        refuse(L, "format", "\"dot\" or \"svg\"");
    return PictureOptions::Format::Svg;
}

std::string fileOnTop(lua_State* L)
{
    std::string_view const file = textAt(L, -1);
    if (file.empty() || file.find('\0') != file.npos)
        refuse(L, "file", "the name of a file");
    return std::string(file);
}

/// The value is on top.
void setOption(lua_State* L, std::string const& name, PictureOptions& options)
{
    if (name == "depth")
        options.depth = countOnTop(L, name);
    else if (name == "limit")
        options.limit = countOnTop(L, name);
    else if (name == "properties")
        options.properties = countOnTop(L, name);
    else if (name == "superclasses")
        options.showsSuperclasses = truthOnTop(L, name);
    else if (name == "handles")
        options.showsHandles = truthOnTop(L, name);
    else if (name == "format")
        options.format = formatOf(L, textAt(L, -1));
    else if (name == "file")
        options.file = fileOnTop(L);
    else
        fail("option", "graph has no option '" + name +
                           "': there are depth, limit, properties, superclasses, handles, format and file");
}

} // namespace

bool isOptions(lua_State* L, int index)
{
    if (!lua_istable(L, index) || !proxyName(L, index).empty() || lua_rawlen(L, index) > 0)
        return false;
    index = lua_absindex(L, index);
    lua_pushnil(L);
    if (!lua_next(L, index))
        return false;
    bool const isNamed = lua_type(L, -2) == LUA_TSTRING;
    lua_pop(L, 2);
    return isNamed;
}

PictureOptions optionsAt(lua_State* L, int index)
{
    PictureOptions options;
    if (lua_isnoneornil(L, index))
        return options;
    if (!lua_istable(L, index) || !proxyName(L, index).empty())
        fail("option", "graph: the options are a table, not " + kindAt(L, index));
    bool hasFormat = false;
    for (lua_pushnil(L); lua_next(L, index); lua_pop(L, 1)) {
        std::string const name = lua_type(L, -2) == LUA_TSTRING ? std::string(textAt(L, -2)) : summary(L, -2);
        setOption(L, name, options);
        hasFormat = hasFormat || name == "format";
    }
    if (!hasFormat && options.file.ends_with(".svg"))
        options.format = PictureOptions::Format::Svg;
    return options;
}

} // namespace velmara::console
