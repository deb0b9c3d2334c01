#pragma once

#include "host_extensions/numericClasses.hpp"

#include <charconv>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <string>

namespace orbis::host_extensions {

/// Formats an element of a numeric or logical array of the class, whose elements begin at `elements`, with as few
/// digits as tell it from others.
inline std::string numberText(hvClassID classID, void const* elements, std::size_t index)
{
    return visitNumericClass(classID, [&]<class T>(T) {
        char text[32];
        T const number = static_cast<T const*>(elements)[index];
        if constexpr (std::same_as<T, bool>)
            return std::string(number ? "true" : "false");
        else if (std::floating_point<T> && std::isnan(static_cast<double>(number)))
            return std::string("NaN"); // its sign means nothing
        else
            return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
    });
}

} // namespace orbis::host_extensions
