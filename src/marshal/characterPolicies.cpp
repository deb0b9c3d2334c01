#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/types/CharPolicy.hpp"
#include "orbis/factory/types/CharPtrPolicy.hpp"
#include "orbis/factory/types/UnicodeCharPtrPolicy.hpp"

#include "marshal/stringScalar.hpp"

#include "libhv/libhv.hpp"

#include <memory>

namespace orbis::factory {

namespace {

/// Returns what `convert` makes of the text of a character array or a host string scalar; null for null.
template <class Char>
Char* convertText(hvArray const* in, Char* (*convert)(hvArray_tag const*))
{
    Char* const text = convert(in);
    if (text || !in)
        return text;
    detail::NewArray const characters(stringScalarAsCharacters(in));
    return convert(characters.get());
}

struct Free {
    void operator()(char* text) const { hvFree(text); }
};

} // namespace

using Char = Marshaler<CharPolicy>;
using CharPtr = Marshaler<CharPtrPolicy>;
using UnicodeCharPtr = Marshaler<UnicodeCharPtrPolicy>;

Char& Char::operator=(Marshaler const&) = default;

Char& Char::operator=(Marshaler&&) = default;

hvArray* Char::makeText(char value)
{
    char const text[] = {value, '\0'};
    return hvCreateString(text);
}

char Char::firstByte(hvArray* in)
{
    std::unique_ptr<char, Free> const text(convertText(in, hvArray2String));
    return text ? *text : '\0';
}

CharPtr& CharPtr::operator=(Marshaler const&) = default;

CharPtr& CharPtr::operator=(Marshaler&&) = default;

void detail::copyText(hvArray const* in, char*& text)
{
    text = convertText(in, hvArrayToString);
}

void detail::copyText(hvArray const* in, char16_t*& text)
{
    text = convertText(in, hvArrayToString_UTF16);
}

UnicodeCharPtr& UnicodeCharPtr::operator=(Marshaler const&) = default;

UnicodeCharPtr& UnicodeCharPtr::operator=(Marshaler&&) = default;

} // namespace orbis::factory
