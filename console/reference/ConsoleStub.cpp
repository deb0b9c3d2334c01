#include "reference/ConsoleStub.hpp"

#include "arrays/ArrayMethods.hpp"
#include "help/ConsoleFunctions.hpp"
#include "reference/LuaSource.hpp"

#include <algorithm>
#include <string_view>

namespace velmara::console {

namespace {

/// What a function is in Lua: annotations, each with its line break, and the names of its inputs.
struct Annotated {
    std::string_view name;
    std::string_view annotations;
    std::string_view inputs;
};

constexpr std::string_view consoleClasses =
    R"(--- An array of the host: a matrix of one class. `a(i, j)` reads parts, `a[i]` elements.
---@class velmara.array
---@field [integer] any
---@field [table] any
---@operator add(any): velmara.array
---@operator sub(any): velmara.array
---@operator mul(any): velmara.array
---@operator div(any): velmara.array
---@operator idiv(any): velmara.array
---@operator mod(any): velmara.array
---@operator pow(any): velmara.array
---@operator unm: velmara.array
---@operator band(any): velmara.array
---@operator bor(any): velmara.array
---@operator bxor(any): velmara.array
---@operator bnot: velmara.array
---@operator len: integer
---@overload fun(rows: any, columns?: any): any
local array_methods = {}

--- An array whose elements are of one type.
---@class velmara.list<T>: velmara.array, { [integer]: T }

--- A member of a package or a class, as `members` tells.
---@class velmara.member
---@field name string
---@field kind "package"|"class"|"function"|"constructor"|"method"|"static method"|"property"|"enumerator"
---@field class? string # that defines it
---@field text string
---@field attributes { [string]: true }
---@field parameters? { name: string, type: string }[]
---@field results? string[]
---@field type? string # of a property
---@field value? integer # of an enumerator

--- A live object, as `objects` tells.
---@class velmara.object
---@field class string
---@field owner string
---@field valid boolean
---@field external integer
---@field internal integer
---@field weak integer
---@field native boolean

--- What the picture of `graph` shows, and how.
---@class velmara.graph
---@field depth? integer # how many properties away from the given objects there are boxes
---@field limit? integer # more objects than that are summed up by class
---@field properties? integer # how many of them are written into a box
---@field superclasses? boolean
---@field handles? boolean
---@field format? "dot"|"svg"
---@field file? string

--- What is alive, as `snapshot` tells.
---@class velmara.snapshot: { [integer]: velmara.growth }
---@operator sub(velmara.snapshot): velmara.snapshot

--- What is alive of one class, created at one line.
---@class velmara.growth
---@field class string
---@field line string # "FILE:LINE"; empty where it is not recorded
---@field objects integer
---@field bindings integer
---@field arrays integer
---@field bytes integer

)";

constexpr Annotated functions[] = {
    {"apropos", "---@param text string\n", "text"},
    {"array",
     "---@overload fun(values: table|velmara.array): velmara.array\n"
     "---@param class any # a name such as \"int32\", or a published class\n---@param values any\n"
     "---@param m? integer\n---@param n? integer\n---@return velmara.array\n",
     "class, values, m, n"},
    {"asarray", "---@param f any # a method or function of the host, or an object\n---@return velmara.array\n",
     "f, ..."},
    {"class", "---@param x any\n---@return string\n", "x"},
    {"copy", "---@generic T\n---@param object T\n---@return T\n", "object"},
    {"delete", "---@param x any\n", "x"},
    {"each", "---@param list any\n---@param f fun(element: any, index: integer)\n", "list, f"},
    {"enumeration",
     "---@param name string\n---@param enumerators (string|{ [1]: string, [2]: integer })[]\n---@return any\n",
     "name, enumerators"},
    {"graph",
     "---@param x? any # an object, or a table or an array of objects\n---@param options? velmara.graph\n"
     "---@return string? # nothing when a file is written\n---@overload fun(options: velmara.graph): string?\n",
     "x, options"},
    {"help", "---@param x? any\n", "x"},
    {"isvalid", "---@param x any\n---@return boolean\n", "x"},
    {"linspace", "---@param first number\n---@param last number\n---@param count integer\n---@return velmara.array\n",
     "first, last, count"},
    {"loadmodule", "---@param path string\n---@return string\n", "path"},
    {"members", "---@param x any\n---@return velmara.member[]\n", "x"},
    {"methods", "---@param x any\n", "x"},
    {"modules", "---@return { name: string, version: string, builddate: string, file: string }[]\n", ""},
    {"objects", "---@return velmara.object[]\n", ""},
    {"properties", "---@param x any\n", "x"},
    {"range", "---@param first number\n---@param last number\n---@param step? number\n---@return velmara.array\n",
     "first, last, step"},
    {"recordlines", "---@param on? boolean\n", "on"},
    {"references", "---@param object any\n---@return { property: string, object: any }[]\n", "object"},
    {"show", "---@param x any\n", "x, ..."},
    {"size", "---@param x any\n---@return integer rows\n---@return integer columns\n", "x"},
    {"snapshot", "---@return velmara.snapshot\n", ""},
    {"time", "---@param f function\n---@return number seconds\n---@return any ...\n", "f, ..."},
    {"tolua", "---@param array any\n---@return any\n", "array"},
    {"unloadmodule", "---@param name string\n", "name"},
    {"withvm", "---@param f function\n---@return any ...\n", "f, ..."},
};

/// The annotations of array methods that are not as those of most.
constexpr std::string_view reduction = "---@param dimension? 1|2\n---@return any\n";
constexpr std::string_view extreme = "---@param dimension? 1|2\n---@return any\n---@return any position\n";
constexpr std::string_view comparison = "---@param b any\n---@return velmara.array\n";
constexpr std::string_view ordering =
    "---@param dimension? 1|2|\"descending\"\n---@param direction? \"descending\"\n---@return velmara.array\n";

constexpr Annotated arrayFunctions[] = {
    {"all", reduction, "dimension"},
    {"any", reduction, "dimension"},
    {"eq", comparison, "b"},
    {"find", "---@return velmara.array\n", ""},
    {"ge", comparison, "b"},
    {"gt", comparison, "b"},
    {"le", comparison, "b"},
    {"lt", comparison, "b"},
    {"max", extreme, "dimension"},
    {"mean", reduction, "dimension"},
    {"min", extreme, "dimension"},
    {"ne", comparison, "b"},
    {"order", ordering, "dimension, direction"},
    {"reshape", "---@param rows integer?\n---@param columns integer?\n---@return velmara.array\n", "rows, columns"},
    {"set", "---@param rows any\n---@param columns any\n---@param values? any\n", "rows, columns, values"},
    {"sort", ordering, "dimension, direction"},
    {"sum", reduction, "dimension"},
    {"transpose", "---@return velmara.array\n", ""},
};

std::string definition(Annotated const& function, std::string_view text, std::string_view owner)
{
    return luaComment(text)
        .append(function.annotations)
        .append("function ")
        .append(owner)
        .append(function.name)
        .append("(")
        .append(function.inputs)
        .append(") end\n\n");
}

std::string_view textOfMethod(std::string_view name)
{
    auto const methods = arrayMethods();
    auto const found =
        std::ranges::find(methods, name, [](ArrayMethod const& method) { return std::string_view(method.name); });
    return found == methods.end() ? "" : found->text;
}

/// A value that is no function.
std::string valueStub(char const* name)
{
    return luaComment(findConsoleFunction(name)->text) + "---@type userdata\n" + name + " = nil\n\n";
}

} // namespace

std::string consoleStub()
{
    std::string text(consoleClasses);
    for (Annotated const& method : arrayFunctions)
        text += definition(method, textOfMethod(method.name), "array_methods:");
    for (Annotated const& function : functions) {
        ConsoleFunction const* const known = findConsoleFunction(function.name);
        text += definition(function, known ? known->text : "", "");
    }
    return text + valueStub("missing") + valueStub("null");
}

} // namespace velmara::console
