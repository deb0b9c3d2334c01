#include "text/utf.hpp"

#include "libkwi18n/libkwi18n.hpp"

namespace velmara {

namespace {

constexpr char32_t replacement = 0xFFFD;

struct Utf8Lead {
    int following;     ///< how many bytes follow; -1 when no sequence starts so
    unsigned char low; ///< the range of the first that follows
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

/// Removes one character, or one ill-formed part, from the front of a text that starts beyond ASCII.
char32_t takeFirst(std::string_view& text)
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

/// The same of UTF-16, where an ill-formed part is one unit.
char32_t takeFirst(std::u16string_view& text)
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

void write(char32_t character, char16_t*& out)
{
    if (character < 0x10000) {
        *out++ = static_cast<char16_t>(character);
    } else {
        *out++ = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
        *out++ = static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
}

/// Writes a character beyond ASCII.
void write(char32_t character, char*& out)
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
}

/// Calls `onAscii` with each run of ASCII, which may be empty, and `onOther` with each character beyond it.
template <class Char, class OnAscii, class OnOther>
void scan(std::basic_string_view<Char> text, OnAscii const& onAscii, OnOther const& onOther)
{
    while (!text.empty()) {
        std::size_t const run = asciiRun(text);
        onAscii(text.substr(0, run));
        text.remove_prefix(run);
        while (!text.empty() && !isAsciiUnit(text.front()))
            onOther(takeFirst(text));
    }
}

template <class From, class To>
void convertText(std::basic_string_view<From> text, To* out)
{
    scan(
        text, [&](std::basic_string_view<From> run) { out = copyAscii(run, out); },
        [&](char32_t character) { write(character, out); });
}

template <class Char, class SizeOf>
std::size_t sizeOfText(std::basic_string_view<Char> text, SizeOf const& sizeOf)
{
    std::size_t size = 0;
    scan(
        text, [&](std::basic_string_view<Char> run) { size += run.size(); },
        [&](char32_t character) { size += sizeOf(character); });
    return size;
}

} // namespace

std::size_t convertedSize(std::string_view utf8)
{
    return sizeOfText(utf8, [](char32_t character) { return character < 0x10000 ? 1 : 2; });
}

std::size_t convertedSize(std::u16string_view utf16)
{
    return sizeOfText(utf16, [](char32_t character) { return character < 0x800 ? 2 : character < 0x10000 ? 3 : 4; });
}

void convert(std::string_view utf8, char16_t* out)
{
    convertText(utf8, out);
}

void convert(std::u16string_view utf16, char* out)
{
    convertText(utf16, out);
}

} // namespace velmara

namespace fl::i18n {

namespace {

template <class To, class From>
std::basic_string<To> converted(std::basic_string<From> const& text)
{
    return velmara::convertTo(
        std::basic_string_view<From>(text), [](std::size_t size) { return std::basic_string<To>(size, To()); },
        [](std::basic_string<To>& result) { return result.data(); });
}

} // namespace

std::string to_string(std::u16string const& text)
{
    return converted<char>(text);
}

std::u16string to_ustring(std::string const& text)
{
    return converted<char16_t>(text);
}

} // namespace fl::i18n
