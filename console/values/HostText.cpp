#include "values/HostText.hpp"

#include "text/CutText.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwi18n/libkwi18n.hpp"
#include "string_matrix/string_matrix.hpp"

namespace velmara::console {

using orbis::host_extensions::utf8Size;
using orbis::host_extensions::writeUtf8;

std::string toUtf8(std::u16string_view text)
{
    std::string utf8(utf8Size(text), '\0');
    writeUtf8(text, utf8.data());
    return utf8;
}

void pushHostText(lua_State* L, std::u16string_view text)
{
    std::size_t const size = utf8Size(text);
    if (char utf8[256]; size <= sizeof utf8) [[likely]] {
        writeUtf8(text, utf8);
        lua_pushlstring(L, utf8, size);
        return;
    }
    luaL_Buffer buffer;
    writeUtf8(text, luaL_buffinitsize(L, &buffer, size));
    luaL_pushresultsize(&buffer, size);
}

std::string quoteText(std::u16string_view text, std::size_t width)
{
    constexpr std::size_t maxUnits = 2; // of one character
    return quoteText(toUtf8(text.substr(0, (width + 1) * maxUnits)), width);
}

std::u16string hostTextAt(lua_State* L, int index)
{
    return fl::i18n::to_ustring(std::string(textAt(L, index)));
}

std::u16string_view textOf(hvArray_tag const& characters)
{
    return {static_cast<char16_t const*>(orbis::host_extensions::getData(&characters)),
            characters.get_number_of_elements()};
}

std::u16string rowOf(hvArray_tag const& characters, std::size_t row)
{
    auto const* const data = static_cast<char16_t const*>(orbis::host_extensions::getData(&characters));
    std::size_t const rows = characters.get_dimensions()[0];
    std::u16string text(rows == 0 ? 0 : characters.get_dimensions()[1], u'\0');
    for (std::size_t column = 0; column < text.size(); ++column)
        text[column] = data[column * rows + row];
    return text;
}

std::optional<std::u16string_view> stringAt(hvArray_tag const& strings, std::size_t index)
{
    auto const& view = Tarnwick::String::getString(&strings);
    if (view.isMissing(index))
        return std::nullopt;
    return std::u16string_view(view.getText(index), view.getLength(index));
}

void storeString(hvArray_tag* strings, std::size_t index, std::optional<std::u16string_view> text)
{
    text ? orbis::host_extensions::setString(strings, index, *text)
         : orbis::host_extensions::setMissing(strings, index);
}

} // namespace velmara::console
