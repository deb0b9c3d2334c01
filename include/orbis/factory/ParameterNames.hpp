#pragma once

#include <cstddef>

namespace orbis::factory {

/// The names of a member's parameters, separated by commas, after the object: a literal, counted at compile time.
/// Fewer names than parameters are fine; the rest are p0, p1, ... by their places.
template <std::size_t Arity>
class ParameterNames {
public:
    ParameterNames() = default;

    consteval ParameterNames(char const* names) : text_(names)
    {
        std::size_t count = *names ? 1 : 0;
        for (; *names; ++names)
            count += *names == ',';
        if (count > Arity)
            throw "More parameter names are listed than the function has parameters: remove the extra names.";
    }

    /// Null when there are none.
    constexpr char const* text() const { return text_; }

private:
    char const* text_ = nullptr;
};

} // namespace orbis::factory
