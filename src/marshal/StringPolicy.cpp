#include "orbis/factory/types/StringPolicy.hpp"

#include "marshal/HostText.hpp"
#include "marshal/stringScalar.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace orbis::factory {

namespace {

template <class Chunk>
bool hasBeyondAscii(char const* text)
{
    Chunk chunk;
    std::memcpy(&chunk, text, sizeof chunk);
    return chunk & static_cast<Chunk>(0x8080808080808080);
}

/// Tests chunks of eight bytes; the last chunk may overlap the previous one.
bool isAscii(char const* text, std::size_t size)
{
    if (size < 8)
        return std::none_of(text, text + size, [](char c) { return hasBeyondAscii<unsigned char>(&c); });
    for (std::size_t place = 0; place < size - 8; place += 8) {
        if (hasBeyondAscii<std::uint64_t>(text + place))
            return false;
    }
    return !hasBeyondAscii<std::uint64_t>(text + size - 8);
}

/// The number of UTF-16 code units of well-formed UTF-8 text.
std::size_t unitsOf(std::string_view text)
{
    std::size_t units = 0;
    for (char const c : text) {
        auto const byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0) != 0x80; // one per character,
        units += byte >= 0xF0;          // two beyond the first plane
    }
    return units;
}

/// Returns the whole text of a character array. `utf8` is its part before the first zero.
std::string readAcrossZeros(hvArray const* in, std::string_view utf8)
{
    std::size_t const units = in->get_number_of_elements();
    if (unitsOf(utf8) == units)
        return std::string(utf8);
    HostText<char16_t> const utf16(hvArrayToString_UTF16(in));
    return fl::i18n::to_string(fl::ustring(utf16.get(), units));
}

} // namespace

Marshaler<StringPolicy>& Marshaler<StringPolicy>::operator=(Marshaler const&) = default;

Marshaler<StringPolicy>& Marshaler<StringPolicy>::operator=(Marshaler&&) = default;

std::string Marshaler<StringPolicy>::read(hvArray* in)
{
    if (!in)
        return {};
    HostText<char> const text(hvArrayToString(in));
    if (!text)
        return fl::i18n::to_string(readStringScalar(in));
    std::size_t const size = std::strlen(text.get());
    if (size == in->get_number_of_elements() && isAscii(text.get(), size)) [[likely]]
        return std::string(text.get(), size);
    return readAcrossZeros(in, {text.get(), size});
}

} // namespace orbis::factory
