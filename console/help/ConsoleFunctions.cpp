#include "help/ConsoleFunctions.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

char const valuesKey = 0; // its address is the key of the names by their values in the registry

constexpr ConsoleFunction functions[] = {
    {"apropos", "apropos(text)", "Lists what has the text in its name or its description, in all packages."},
    {"array", "array(class, values, m, n)",
     "An array of exactly that class; without one, of the class that the host makes of a table. The values are a "
     "sequence, a sequence of sequences, an array, or one value; with "
     "m and n they fill m rows and n columns by column."},
    {"asarray", "asarray(f, ...) asarray(object, \"property\")",
     "Calls a method or function of the host, or reads a property: the result is always an array."},
    {"class", "class(x)", "The name of the class of any value, as the host sees it."},
    {"copy", "copy(object)", "Another object with the same value."},
    {"delete", "delete(x)", "Destroys an object, or all objects in a table or an array, now."},
    {"each", "each(list, f)",
     "Calls f(element, index) for each element; at a terminal shows how far it is, once that takes longer than a "
     "second."},
    {"enumeration", "enumeration(name, enumerators)",
     "Publishes an enumeration: its enumerators are names, or pairs of name and integer."},
    {"graph", "graph(x, options)",
     "Objects and what their properties refer to as a picture: as text for Graphviz, or as SVG. x is an object, or a "
     "table or an array of objects; without it: all live objects. The options are a table with depth, limit, "
     "properties, superclasses, handles, format (\"dot\" or \"svg\") and file."},
    {"help", "help(x)",
     "Explains a package, a class, an object, a method, a function, any value, or what a name in quotes means. "
     "Without x: all of the console."},
    {"isvalid", "isvalid(x)", "Whether an object is alive, all objects of an array are, or a name is published."},
    {"linspace", "linspace(first, last, count)", "A row of that many numbers at equal distances."},
    {"loadmodule", "loadmodule(path)", "Loads a module with its packages; returns its name."},
    {"members", "members(x)",
     "What help tells of a package, a class or an object as a sequence of tables with name, kind, type, parameters, "
     "results, text, attributes and class."},
    {"methods", "methods(x)", "Prints the methods of a class or object, or the functions of a package."},
    {"missing", "missing", "Stands in an array of strings for an element without a text."},
    {"modules", "modules()", "The loaded modules: a sequence of tables with name, version, builddate and file."},
    {"null", "null", "Stands in tables and arrays for no object, or an empty cell."},
    {"objects", "objects()", "All live objects: a sequence of tables with class, owner and references."},
    {"properties", "properties(x)", "Prints the properties of a class or object."},
    {"range", "range(first, last, step)", "A row of numbers from the first on, up to the last."},
    {"recordlines", "recordlines(on)",
     "Has snapshots tell from now on which line of the script creates what, and what arrays there are; false ends "
     "that."},
    {"references", "references(object)",
     "The objects to which its properties refer: a sequence of tables with property and object."},
    {"show", "show(x, ...)", "Prints values with all that they hold, on one screen."},
    {"size", "size(x)", "The rows and columns of any value, as the host sees it."},
    {"snapshot", "snapshot()",
     "Counts what is alive after a collection of garbage: a sequence of tables with class, line, objects, bindings, "
     "arrays and bytes. snapshot() - before is the growth since then."},
    {"time", "time(f, ...)", "Calls f(...); returns the seconds that it took, then its results."},
    {"tolua", "tolua(array)", "All of an array as tables, strings and numbers."},
    {"unloadmodule", "unloadmodule(name)", "Unloads a module with its packages."},
    {"withvm", "withvm(f, ...)", "Calls a function while another virtual machine with the same modules is in use."},
};

} // namespace

std::span<ConsoleFunction const> consoleFunctions()
{
    return functions;
}

ConsoleFunction const* findConsoleFunction(std::string_view name)
{
    auto const* const found = std::ranges::find(
        functions, name, [](ConsoleFunction const& function) { return std::string_view(function.name); });
    return found == std::end(functions) ? nullptr : found;
}

void recordConsoleFunctions(lua_State* L)
{
    lua_newtable(L);
    for (ConsoleFunction const& function : functions)
        if (lua_getglobal(L, function.name) != LUA_TNIL) {
            lua_pushstring(L, function.name);
            lua_rawset(L, -3);
        } else
            lua_pop(L, 1);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &valuesKey);
}

ConsoleFunction const* consoleFunctionAt(lua_State* L, int index)
{
    if (lua_isnoneornil(L, index))
        return nullptr;
    lua_pushvalue(L, index);
    lua_rawgetp(L, LUA_REGISTRYINDEX, &valuesKey);
    lua_insert(L, -2);
    lua_rawget(L, -2);
    ConsoleFunction const* const found = findConsoleFunction(textAt(L, -1));
    lua_pop(L, 2);
    return found;
}

} // namespace velmara::console
