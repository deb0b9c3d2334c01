#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmara::console {

/// Text of scripts, UTF-8, and of the host, UTF-16. What is ill-formed becomes U+FFFD in the other form.

std::string toUtf8(std::u16string_view text);
void pushHostText(lua_State* L, std::u16string_view text);

/// The text in double quotes, in at most `width` columns without these: see CutText.hpp.
std::string quoteText(std::u16string_view text, std::size_t width);

/// The text of the string at `index`; empty for anything but a string.
std::u16string hostTextAt(lua_State* L, int index);

/// The characters of an array that has at most one row, valid until it is written to.
std::u16string_view textOf(hvArray_tag const& characters);

/// One row of any character array.
std::u16string rowOf(hvArray_tag const& characters, std::size_t row);

/// An element of a string array, valid until that is written to; nothing when it is missing.
std::optional<std::u16string_view> stringAt(hvArray_tag const& strings, std::size_t index);

/// Stores a copy of the text in a string array; missing for nothing.
void storeString(hvArray_tag* strings, std::size_t index, std::optional<std::u16string_view> text);

} // namespace velmara::console
