#pragma once

#include "velmara/ArrayPtr.hpp"

#include "additions/additions.hpp"

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
    return ArrayPtr(orbis::additions::createText(text));
}

/// Characters of several rows, which are no text.
inline ArrayPtr block()
{
    return ArrayPtr(orbis::additions::createMatrix(2, 2, hvCHAR_CLASS));
}

inline ArrayPtr numbers(std::size_t count)
{
    return ArrayPtr(orbis::additions::createMatrix(1, count, hvDOUBLE_CLASS));
}

/// A row of strings; nothing is a missing one.
inline ArrayPtr strings(std::initializer_list<std::optional<std::u16string_view>> elements)
{
    ArrayPtr array(orbis::additions::createStringMatrix(1, elements.size()));
    std::size_t index = 0;
    for (auto const& element : elements) {
        if (element)
            orbis::additions::setString(array.get(), index, *element);
        ++index;
    }
    return array;
}

/// A row of cells with copies of the arrays; null is an empty cell.
inline ArrayPtr cells(std::initializer_list<hvArray const*> elements)
{
    ArrayPtr array(hvCreateCellMatrix(1, elements.size()));
    std::size_t index = 0;
    for (hvArray const* const element : elements)
        hvSetCell(array.get(), index++, element ? hvCreateDeepCopy(element) : nullptr);
    return array;
}

/// The text of a character array, zeros included.
inline std::u16string textOf(hvArray const* array)
{
    auto const* const data = static_cast<char16_t const*>(orbis::additions::getData(array));
    return array->_get_class_id_non_trivial() == hvCHAR_CLASS ? std::u16string(data, array->get_number_of_elements())
                                                              : u"(no characters)";
}

template <class Text>
Text upToZero(Text const& text)
{
    return text.c_str();
}

/// Any text: ASCII, zeros, other characters, and surrogates in pairs and alone.
inline std::u16string anyText(std::mt19937& random)
{
    auto const between = [&](unsigned low, unsigned high) { return low + random() % (high - low + 1); };
    std::u16string text(between(0, 40), u'\0');
    unsigned const kinds = between(0, 5);
    std::ranges::generate(text, [&]() -> char16_t {
        switch (between(0, kinds)) {
        case 1:
            return static_cast<char16_t>(between(0x80, 0x7FF));
        case 2:
            return static_cast<char16_t>(between(0xD7F0, 0xE010));
        case 3:
            return static_cast<char16_t>(between(0x800, 0xFFFF));
        case 4:
            return static_cast<char16_t>(between(0, 1));
        default:
            return static_cast<char16_t>(between(1, 0x7F));
        }
    });
    return text;
}

} // namespace texts
