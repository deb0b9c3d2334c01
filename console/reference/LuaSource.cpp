#include "reference/LuaSource.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

constexpr std::string_view keywords[] = {"and",      "break",  "do",   "else", "elseif", "end",  "false", "for",
                                         "function", "goto",   "if",   "in",   "local",  "nil",  "not",   "or",
                                         "repeat",   "return", "then", "true", "until",  "while"};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || isDigit(c);
}

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

/// What is left of the text without its first line, which is taken to `line`.
std::string_view takeLine(std::string_view text, std::string_view& line)
{
    std::size_t const end = std::min(text.find_first_of("\r\n"), text.size());
    line = text.substr(0, end);
    return text.substr(std::min(end + 1, text.size()));
}

std::string nameLike(std::string_view text)
{
    std::string name(text);
    std::ranges::replace_if(
        name, [](char c) { return !isNameCharacter(c); }, '_');
    if (name.empty() || isDigit(name.front()))
        name.insert(0, 1, '_');
    return isLuaName(name) ? name : name + '_';
}

} // namespace

bool isLuaName(std::string_view text)
{
    return !text.empty() && !isDigit(text.front()) && std::ranges::all_of(text, isNameCharacter) &&
           std::ranges::find(keywords, text) == std::end(keywords);
}

std::string luaString(std::string_view text)
{
    std::string result = "\"";
    for (char const c : text) {
        if (isControl(c)) {
            std::string const code = std::to_string(static_cast<unsigned char>(c));
            result += '\\' + std::string(3 - code.size(), '0') + code;
        } else {
            result += c == '"' || c == '\\' ? "\\" : "";
            result += c;
        }
    }
    return result + '"';
}

std::string luaIndex(std::string_view owner, std::string_view name)
{
    if (!isLuaName(name))
        return std::string(owner.empty() ? "_G" : owner) + '[' + luaString(name) + ']';
    return owner.empty() ? std::string(name) : std::string(owner) + '.' + std::string(name);
}

std::string luaPath(std::string_view fullName)
{
    std::size_t const dot = fullName.rfind('.');
    return dot == fullName.npos ? luaIndex({}, fullName)
                                : luaIndex(luaPath(fullName.substr(0, dot)), fullName.substr(dot + 1));
}

std::vector<std::string> luaParameters(std::span<ParameterRecord const> parameters)
{
    std::vector<std::string> names;
    for (ParameterRecord const& parameter : parameters) {
        std::string name = nameLike(parameter.name);
        while (name == "self" || std::ranges::find(names, name) != names.end())
            name += '_';
        names.push_back(std::move(name));
    }
    return names;
}

std::string luaComment(std::string_view text)
{
    std::string result;
    for (std::string_view line; !text.empty();) {
        text = takeLine(text, line);
        std::size_t const start = line.find_first_not_of(" \t\v\f");
        bool const isAnnotation = start != line.npos && (line[start] == '@' || line[start] == '|');
        result += (isAnnotation ? "--- \\" : "--- ") + annotationText(line) + '\n';
    }
    return result;
}

std::string annotationText(std::string_view text)
{
    std::string line(text.substr(std::min(text.find_first_not_of(" \t\v\f\r\n"), text.size())));
    std::ranges::replace_if(line, isControl, ' ');
    return line;
}

} // namespace velmara::console
