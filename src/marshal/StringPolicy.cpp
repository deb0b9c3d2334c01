#include "orbis/factory/StringPolicy.hpp"

#include "marshal/HostText.hpp"
#include "marshal/stringScalar.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <cstdint>
#include <cstring>

namespace orbis::factory {

namespace {

bool isAscii(std::string_view text)
{
    constexpr std::uint64_t beyondAscii = 0x8080808080808080;
    std::uint64_t seen = 0;
    std::uint64_t chunk;
    for (; text.size() >= sizeof chunk; text.remove_prefix(sizeof chunk)) {
        std::memcpy(&chunk, text.data(), sizeof chunk);
        seen |= chunk;
    }
    chunk = 0;
    std::memcpy(&chunk, text.data(), text.size());
    return ((seen | chunk) & beyondAscii) == 0;
}

/// How many UTF-16 code units well-formed UTF-8 text has.
std::size_t unitsOf(std::string_view text)
{
    std::size_t units = 0;
    for (char const c : text) {
        auto const byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0) != 0x80; // one for each character,
        units += byte >= 0xF0;          // and one more beyond the first plane
    }
    return units;
}

/// The whole of a character array's text, of which `utf8` is the part before its first zero.
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
    std::string_view const utf8(text.get());
    if (utf8.size() == in->get_number_of_elements() && isAscii(utf8)) [[likely]]
        return std::string(utf8);
    return readAcrossZeros(in, utf8);
}

} // namespace orbis::factory
