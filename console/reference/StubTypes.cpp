#include "reference/StubTypes.hpp"

#include "reference/LuaSource.hpp"

#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <vector>

namespace velmara::console {

namespace {

using orbis::host_extensions::NumericClass;
using orbis::host_extensions::numericClasses;

/// Removes the suffix; false when the text has none.
bool takeSuffix(std::string_view& text, std::string_view suffix)
{
    if (!text.ends_with(suffix))
        return false;
    text.remove_suffix(suffix.size());
    return true;
}

NumericClass const* findNumeric(std::string_view className)
{
    auto const* const found = std::ranges::find(
        numericClasses, className, [](NumericClass const& numeric) { return std::string_view(numeric.name); });
    return found == std::end(numericClasses) ? nullptr : found;
}

/// What one element is in Lua.
std::string elementOf(NumericClass const& numeric)
{
    switch (numeric.classID) {
    case hvLOGICAL_CLASS:
        return "boolean";
    case hvDOUBLE_CLASS:
    case hvSINGLE_CLASS:
        return "number";
    default:
        return "integer";
    }
}

bool isText(std::string_view dataType)
{
    return dataType == "char" || dataType == "char vector" || dataType == "unicodeString";
}

/// The parameters of "function(...) -> result", and last the result; that is empty for none.
std::vector<std::string_view> partsOf(std::string_view function)
{
    std::vector<std::string_view> parts;
    std::size_t start = function.find('(') + 1;
    std::size_t i = start;
    for (int depth = 1; depth > 0 && i < function.size(); ++i) {
        char const c = function[i];
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        bool const isEnd = depth == 0;
        if (!isEnd && (depth != 1 || c != ','))
            continue;
        if (!isEnd || i > start)
            parts.push_back(function.substr(start, i - start));
        start = i + (isEnd ? 1 : 2);
    }
    std::string_view result = function.substr(i);
    if (result.starts_with(" -> "))
        result.remove_prefix(4);
    parts.push_back(result == "void" ? std::string_view() : result);
    return parts;
}

/// The parts of a type "a|b".
std::vector<std::string_view> alternativesOf(std::string_view type)
{
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    int depth = 0;
    for (std::size_t i = 0; i <= type.size(); ++i) {
        char const c = i < type.size() ? type[i] : '|';
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (c != '|' || depth != 0)
            continue;
        parts.push_back(type.substr(start, i - start));
        start = i + 1;
    }
    return parts;
}

} // namespace

std::string stubTypeName(std::string_view className)
{
    std::string name(className);
    std::ranges::replace_if(
        name,
        [](char c) {
            return c != '.' && !isLuaName({&c, 1}) && (c < '0' || c > '9');
        },
        '_');
    return name;
}

std::string StubTypes::both(std::string_view dataType) const
{
    std::string const whatIsGiven = given(dataType);
    std::string type = whatIsGiven;
    std::vector<std::string_view> const known = alternativesOf(whatIsGiven);
    std::string const whatIsTaken = taken(dataType);
    for (std::string_view const alternative : alternativesOf(whatIsTaken))
        if (std::ranges::find(known, alternative) == known.end())
            type.append(1, '|').append(alternative);
    return type;
}

std::string StubTypes::text(std::string_view dataType, Direction direction) const
{
    if (!takeSuffix(dataType, " or empty"))
        return value(dataType, direction);
    std::string const type = value(dataType, direction);
    return type == "any" || type.ends_with("|nil") ? type : type + "|nil";
}

std::string StubTypes::value(std::string_view dataType, Direction direction) const
{
    if (isText(dataType))
        return "string";
    if (dataType.starts_with("function"))
        return function(dataType, direction);
    std::string_view elements = dataType;
    if (takeSuffix(elements, " vector"))
        return list(elements, direction);
    if (takeSuffix(elements, " scalar"))
        if (NumericClass const* const numeric = findNumeric(elements)) {
            bool const isUint64 = numeric->classID == hvUINT64_CLASS && direction == Direction::Given;
            return elementOf(*numeric) + (isUint64 ? "|velmara.array" : "");
        }
    return objects(dataType, direction);
}

std::string StubTypes::objects(std::string_view className, Direction direction) const
{
    auto const found = classes_.find(className);
    if (found == classes_.end())
        return "any";
    bool const isEnumeration = found->second == Kind::Enumeration;
    if (direction == Direction::Taken)
        return stubTypeName(className) + (isEnumeration ? ".value" : "");
    return stubTypeName(className) + (isEnumeration ? "" : "|nil");
}

std::string StubTypes::list(std::string_view elements, Direction direction) const
{
    NumericClass const* const numeric = findNumeric(elements);
    if (!numeric && !has(elements))
        return "any";
    std::string const type = numeric ? elementOf(*numeric) : objects(elements, Direction::Taken);
    if (direction == Direction::Taken)
        return type + '|' + type + "[]|" + (numeric ? type + "[][]|" : "") + "velmara.array";
    if (!numeric)
        return "velmara.list<" + stubTypeName(elements) + '>';
    bool const isTable = numeric->classID == hvDOUBLE_CLASS || numeric->classID == hvLOGICAL_CLASS;
    // One number is that number.
    return type + '|' + (isTable ? type + "[]|" + type + "[][]|velmara.array" : "velmara.list<" + type + '>');
}

std::string StubTypes::function(std::string_view dataType, Direction direction) const
{
    std::string const none = direction == Direction::Given ? "|nil" : "";
    if (!dataType.starts_with("function("))
        return dataType == "function" ? "function" + none : "any";
    Direction const opposite = direction == Direction::Taken ? Direction::Given : Direction::Taken;
    std::vector<std::string_view> const parts = partsOf(dataType);
    std::string type = "(fun(";
    for (std::size_t i = 0; i + 1 < parts.size(); ++i)
        type += (i == 0 ? "p" : ", p") + std::to_string(i + 1) + ": " + text(parts[i], opposite);
    type += ')';
    if (!parts.back().empty())
        type += ": " + text(parts.back(), direction);
    return type + ')' + none;
}

} // namespace velmara::console
