#include "help/Expression.hpp"

#include <algorithm>
#include <cctype>

namespace velmara::console {

namespace {

using Step = ExpressionStep::Kind;

bool isIdentifierCharacter(unsigned char c)
{
    return std::isalnum(c) != 0 || c == '_';
}

bool isQuote(char c)
{
    return c == '"' || c == '\'';
}

/// Where the last bracket opens that is not closed in the text, passing quoted strings; npos when there is none.
std::size_t findOpen(std::string_view text)
{
    int closed = 0;
    for (std::size_t i = text.size(); i-- > 0;) {
        char const c = text[i];
        if (isQuote(c)) {
            i = i == 0 ? text.npos : text.rfind(c, i - 1);
            if (i == text.npos)
                break;
        } else if (c == ')' || c == ']' || c == '}')
            ++closed;
        else if ((c == '(' || c == '[' || c == '{') && closed-- == 0)
            return i;
    }
    return std::string_view::npos;
}

/// Removes the arguments, the index or the quoted string at the end of the text, and returns it as a step. Removes all
/// where its beginning is missing.
ExpressionStep takeBrackets(std::string_view& text)
{
    char const last = text.back();
    std::string_view const inside = text.substr(0, text.size() - 1);
    std::size_t const start = isQuote(last) ? inside.rfind(last) : findOpen(inside);
    if (start == text.npos) {
        text = {};
        return {Step::Call, {}};
    }
    text = text.substr(0, start);
    return {last == ']' ? Step::Index : Step::Call, inside.substr(start + 1)};
}

/// Removes the name at the end of the text with the separator before it, and returns it as a step.
ExpressionStep takeName(std::string_view& text)
{
    std::size_t const length = identifierLength(text);
    std::string_view const name = text.substr(text.size() - length);
    text.remove_suffix(length);
    if (text.ends_with("..") || !(text.ends_with('.') || text.ends_with(':')))
        return {Step::Name, name};
    Step const kind = text.back() == '.' ? Step::Member : Step::Method;
    text.remove_suffix(1);
    return {kind, name};
}

} // namespace

std::size_t identifierLength(std::string_view text)
{
    auto const end = std::find_if_not(text.rbegin(), text.rend(), isIdentifierCharacter);
    return static_cast<std::size_t>(end - text.rbegin());
}

std::vector<ExpressionStep> expressionAtEnd(std::string_view text)
{
    std::vector<ExpressionStep> steps;
    while (!text.empty()) {
        char const last = text.back();
        if (last == ')' || last == ']' || last == '}' || isQuote(last))
            steps.push_back(takeBrackets(text));
        else if (isIdentifierCharacter(static_cast<unsigned char>(last)))
            steps.push_back(takeName(text));
        else
            break;
        if (steps.back().kind == Step::Name) {
            std::ranges::reverse(steps);
            return steps;
        }
    }
    return {};
}

std::string_view beforeOpenCall(std::string_view text)
{
    std::size_t const open = findOpen(text);
    std::string_view const before = text.substr(0, std::min(open, text.size()));
    bool const isCall = open != text.npos && (text[open] == '(' || (text[open] == '{' && identifierLength(before) > 0));
    return isCall ? before : std::string_view();
}

} // namespace velmara::console
