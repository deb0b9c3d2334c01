#pragma once

#include <cstddef>

namespace orbis::factory {

/// The names of a member's parameters, separated by commas, each followed by a text for users in parentheses where
/// there is something to say: "angle (in degrees), origin". A literal, checked at compile time. The names start after
/// the object of a member function, but include the object that a free function takes first. Parameters without a name
/// are called p0, p1, ... by position.
template <std::size_t Arity>
class ParameterNames {
public:
    ParameterNames() = default;

    /// Does not compile when `names` has more than the parameters, or parentheses that do not match.
    consteval ParameterNames(char const* names) : text_(names)
    {
        std::size_t count = *names ? 1 : 0;
        bool isText = false;
        for (; *names; ++names) {
            if (*names == (isText ? '(' : ')'))
                throw "The parentheses of a parameter's text do not match: write each as name (text).";
            if (*names == '(' || *names == ')')
                isText = !isText;
            count += *names == ',' && !isText;
        }
        if (isText)
            throw "The parentheses of a parameter's text do not match: write each as name (text).";
        if (count > Arity)
            throw "More parameter names are listed than the function has parameters: remove the extra names.";
    }

    /// Null when no names were given.
    constexpr char const* text() const { return text_; }

private:
    char const* text_ = nullptr;
};

} // namespace orbis::factory
