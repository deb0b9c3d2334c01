#pragma once

#include <string_view>
#include <vector>

namespace velmara::console {

/// A step of an expression such as `a.list[1]:find("x")`.
struct ExpressionStep {
    enum class Kind { Name, Member, Method, Index, Call };

    Kind kind;
    std::string_view text; ///< the name, or what is between the brackets
};

/// The length of the identifier at the end of the text.
std::size_t identifierLength(std::string_view text);

/// The steps of the expression at the end of the text, which begin with a `Name`; empty when there is none, or one of
/// another form.
std::vector<ExpressionStep> expressionAtEnd(std::string_view text);

/// The text before the innermost bracket that is open at the end of the text, when that begins arguments: "f(" or "f{".
/// Else empty.
std::string_view beforeOpenCall(std::string_view text);

} // namespace velmara::console
