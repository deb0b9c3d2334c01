#include "text/Utf.hpp"

#include "text/AsciiText.hpp"

#include "libkwi18n/libkwi18n.hpp"

namespace velmara {

namespace {

constexpr char32_t replacement = 0xFFFD;

struct Utf8Lead {
    int following;     ///< bytes that follow; -1 when no sequence starts so
    unsigned char low; ///< the range of the first of them
    unsigned char high;
};

Utf8Lead classifyLead(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return {1, 0x80, 0xBF};
    if (lead >= 0xE0 && lead <= 0xEF) // neither overlong forms nor surrogates
        return {2, static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF)};
    if (lead >= 0xF0 && lead <= 0xF4) // neither overlong forms nor what lies above U+10FFFF
        return {3, static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF)};
    return {-1, 0, 0};
}

/// Takes one character, or one ill-formed part, off the front of a text that starts beyond ASCII.
char32_t takeBeyondAscii(std::string_view& text)
{
    auto const lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    auto [following, low, high] = classifyLead(lead);
    if (following < 0)
        return replacement;
    char32_t character = lead & (0x3Fu >> following);
    for (; following > 0; --following, low = 0x80, high = 0xBF) {
        auto const next = text.empty() ? 0 : static_cast<unsigned char>(text.front());
        if (next < low || next > high)
            return replacement;
        character = character << 6 | (next & 0x3Fu);
        text.remove_prefix(1);
    }
    return character;
}

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Takes one character, or one ill-formed unit, off the front.
char32_t take(std::u16string_view& text)
{
    char32_t const unit = text.front();
    text.remove_prefix(1);
    if (isHighSurrogate(unit) && !text.empty() && isLowSurrogate(text.front())) {
        char32_t const low = text.front();
        text.remove_prefix(1);
        return 0x10000 + ((unit - 0xD800) << 10 | (low - 0xDC00));
    }
    return isHighSurrogate(unit) || isLowSurrogate(unit) ? replacement : unit;
}

char16_t* write(char32_t character, char16_t* out)
{
    if (character < 0x10000) {
        *out++ = static_cast<char16_t>(character);
    } else {
        *out++ = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
        *out++ = static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    return out;
}

/// Writes a character beyond ASCII.
char* write(char32_t character, char* out)
{
    auto const put = [&](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (character < 0x800) {
        put(0xC0 | character >> 6);
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
    }
    put(0x80 | (character & 0x3F));
    return out;
}

} // namespace

std::size_t sizeAsUtf16(std::string_view utf8)
{
    std::size_t size = 0;
    while (!utf8.empty()) {
        std::size_t const run = asciiRun(utf8);
        utf8.remove_prefix(run);
        size += run;
        while (!utf8.empty() && !isAsciiUnit(utf8.front()))
            size += takeBeyondAscii(utf8) < 0x10000 ? 1 : 2;
    }
    return size;
}

char16_t* writeAsUtf16(std::string_view utf8, char16_t* out)
{
    while (!utf8.empty()) {
        std::size_t const run = asciiRun(utf8);
        out = copyAscii(utf8.substr(0, run), out);
        utf8.remove_prefix(run);
        while (!utf8.empty() && !isAsciiUnit(utf8.front()))
            out = write(takeBeyondAscii(utf8), out);
    }
    return out;
}

std::size_t sizeAsUtf8(std::u16string_view utf16)
{
    std::size_t size = 0;
    while (!utf16.empty()) {
        std::size_t const run = asciiRun(utf16);
        utf16.remove_prefix(run);
        size += run;
        while (!utf16.empty() && !isAsciiUnit(utf16.front())) {
            char32_t const character = take(utf16);
            size += character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
        }
    }
    return size;
}

char* writeAsUtf8(std::u16string_view utf16, char* out)
{
    while (!utf16.empty()) {
        std::size_t const run = asciiRun(utf16);
        out = copyAscii(utf16.substr(0, run), out);
        utf16.remove_prefix(run);
        while (!utf16.empty() && !isAsciiUnit(utf16.front()))
            out = write(take(utf16), out);
    }
    return out;
}

} // namespace velmara

namespace fl::i18n {

std::string to_string(std::u16string const& text)
{
    std::string utf8(velmara::sizeAsUtf8(text), '\0');
    velmara::writeAsUtf8(text, utf8.data());
    return utf8;
}

std::u16string to_ustring(std::string const& text)
{
    std::u16string utf16(velmara::sizeAsUtf16(text), u'\0');
    velmara::writeAsUtf16(text, utf16.data());
    return utf16;
}

} // namespace fl::i18n
