#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

#include <emmintrin.h>

namespace velmara {

/// ASCII between bytes and UTF-16, in blocks of 16 or 8 characters. No read or write leaves the text: the last block
/// overlaps the one before.

template <class Char>
constexpr bool isAsciiUnit(Char unit)
{
    return static_cast<std::make_unsigned_t<Char>>(unit) < 0x80;
}

namespace ascii {

template <class Word, class Char>
Word load(Char const* text)
{
    Word word;
    std::memcpy(&word, text, sizeof word);
    return word;
}

template <class Word, class Char>
void store(Char* out, Word word)
{
    std::memcpy(out, &word, sizeof word);
}

inline bool hasNonAscii(__m128i units, std::uint64_t beyondAscii)
{
    __m128i const bits = _mm_and_si128(units, _mm_set1_epi64x(static_cast<long long>(beyondAscii)));
    return _mm_movemask_epi8(_mm_cmpeq_epi8(bits, _mm_setzero_si128())) != 0xFFFF;
}

constexpr std::uint64_t beyondAsciiBytes = 0x8080808080808080;
constexpr std::uint64_t beyondAsciiUnits = 0xFF80FF80FF80FF80;

/// Works on `size` characters at once.
template <std::size_t size>
struct Block;

template <>
struct Block<16> {
    static bool hasNonAscii(char const* text) { return _mm_movemask_epi8(load<__m128i>(text)) != 0; }

    static bool hasNonAscii(char16_t const* text)
    {
        return ascii::hasNonAscii(_mm_or_si128(load<__m128i>(text), load<__m128i>(text + 8)), beyondAsciiUnits);
    }

    static void copy(char const* text, char16_t* out)
    {
        auto const bytes = load<__m128i>(text);
        store(out, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
        store(out + 8, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
    }

    static void copy(char16_t const* text, char* out)
    {
        store(out, _mm_packus_epi16(load<__m128i>(text), load<__m128i>(text + 8)));
    }
};

template <>
struct Block<8> {
    static bool hasNonAscii(char const* text) { return (load<std::uint64_t>(text) & beyondAsciiBytes) != 0; }
    static bool hasNonAscii(char16_t const* text) { return ascii::hasNonAscii(load<__m128i>(text), beyondAsciiUnits); }

    static void copy(char const* text, char16_t* out)
    {
        __m128i const bytes = _mm_cvtsi64_si128(load<long long>(text));
        store(out, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
    }

    static void copy(char16_t const* text, char* out)
    {
        auto const units = load<__m128i>(text);
        store(out, _mm_cvtsi128_si64(_mm_packus_epi16(units, units)));
    }
};

template <std::size_t size, class Char>
std::size_t findNonAscii(std::basic_string_view<Char> text)
{
    std::size_t at = 0;
    for (; at + size <= text.size(); at += size)
        if (Block<size>::hasNonAscii(text.data() + at))
            return at;
    if (at != text.size() && Block<size>::hasNonAscii(text.data() + text.size() - size))
        return at;
    return text.size();
}

template <std::size_t size, class From, class To>
void copyBlocks(std::basic_string_view<From> text, To* out)
{
    std::size_t at = 0;
    for (; at + size <= text.size(); at += size)
        Block<size>::copy(text.data() + at, out + at);
    if (at != text.size())
        Block<size>::copy(text.data() + text.size() - size, out + text.size() - size);
}

} // namespace ascii

/// The length of the run of ASCII at the start.
template <class Char>
std::size_t asciiRun(std::basic_string_view<Char> text)
{
    std::size_t run = 0;
    if (text.size() >= 16)
        run = ascii::findNonAscii<16>(text);
    else if (text.size() >= 8)
        run = ascii::findNonAscii<8>(text);
    while (run < text.size() && isAsciiUnit(text[run]))
        ++run;
    return run;
}

template <class Char>
bool isAscii(std::basic_string_view<Char> text)
{
    return asciiRun(text) == text.size();
}

/// Writes ASCII in its other form and returns the end of what it wrote.
template <class From, class To>
To* copyAscii(std::basic_string_view<From> text, To* out)
{
    if (text.size() >= 16)
        ascii::copyBlocks<16>(text, out);
    else if (text.size() >= 8)
        ascii::copyBlocks<8>(text, out);
    else
        for (std::size_t i = 0; i < text.size(); ++i)
            out[i] = static_cast<To>(text[i]);
    return out + text.size();
}

} // namespace velmara
