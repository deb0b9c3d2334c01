#pragma once

#include "velmara/ArrayPtr.hpp"

#include "host_extensions/host_extensions.hpp"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>

/// Host arrays of text, as scripts make them.
namespace texts {

using velmara::ArrayPtr;

inline ArrayPtr characters(std::u16string_view text)
{
    return ArrayPtr(orbis::host_extensions::createText(text));
}

/// A row of strings; nothing is a missing one.
inline ArrayPtr strings(std::initializer_list<std::optional<std::u16string_view>> elements)
{
    ArrayPtr array(orbis::host_extensions::createStringMatrix(1, elements.size()));
    for (std::size_t i = 0; auto const& element : elements) {
        if (element)
            orbis::host_extensions::setString(array.get(), i, *element);
        ++i;
    }
    return array;
}

/// A row of cells with copies of the arrays; null is an empty cell.
inline ArrayPtr cells(std::initializer_list<hvArray const*> elements)
{
    ArrayPtr array(hvCreateCellMatrix(1, elements.size()));
    for (std::size_t i = 0; hvArray const* const element : elements)
        hvSetCell(array.get(), i++, element ? hvCreateDeepCopy(element) : nullptr);
    return array;
}

/// The text of a character array, zeros included.
inline std::u16string textOf(hvArray const* array)
{
    if (array->_get_class_id_non_trivial() != hvCHAR_CLASS)
        return u"(no characters)";
    auto const* const data = static_cast<char16_t const*>(orbis::host_extensions::getData(array));
    return {data, array->get_number_of_elements()};
}

inline std::u16string textOf(ArrayPtr const& array)
{
    return textOf(array.get());
}

template <class Text>
Text upToZero(Text const& text)
{
    return text.c_str();
}

/// Text of ASCII, or also of zeros, other characters, and surrogates in pairs and alone.
inline std::u16string anyText(std::mt19937& random)
{
    constexpr std::u16string_view units(u"abcdefgh\0\x7F\x80\u07FF\u0800\xD800\xDBFF\xDC00\xDFFF\uFFFF", 18);
    std::u16string text(random() % 40, u'\0');
    std::size_t const variety = 1 + random() % units.size();
    std::ranges::generate(text, [&] { return units[random() % variety]; });
    return text;
}

} // namespace texts
