#include "arrays/Array.hpp"
#include "memory/TextMemory.hpp"
#include "text/AsciiText.hpp"
#include "text/Utf.hpp"
#include "text/copyUnits.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"

namespace matrix::detail::noninlined::hv_array_api {

using velmara::Array;
using velmara::TextMemory;

namespace {

bool isCharacters(hvArray_tag const* array)
{
    return array && Array::of(array)->classID() == hvCHAR_CLASS;
}

[[gnu::noinline]] hvArray* createBeyondAscii(std::string_view utf8)
{
    Array* const array = Array::createText(velmara::sizeAsUtf16(utf8));
    velmara::writeAsUtf16(utf8, array->newText());
    return array;
}

[[gnu::noinline]] char* writeBeyondAscii(std::u16string_view utf16)
{
    char* const text = TextMemory::allocate<char>(velmara::sizeAsUtf8(utf16));
    velmara::writeAsUtf8(utf16, text);
    return text;
}

} // namespace

hvArray* hvCreateString(char const* text)
{
    std::string_view const utf8 = text ? text : "";
    if (!velmara::isAscii(utf8)) [[unlikely]]
        return createBeyondAscii(utf8);
    Array* const array = Array::createText(utf8.size());
    velmara::copyAscii(utf8, array->newText());
    return array;
}

hvArray* hvCreateString_UTF16(char16_t const* text)
{
    return orbis::additions::createText(text ? text : u"");
}

char* hvArrayToString(hvArray_tag const* array)
{
    if (!isCharacters(array))
        return nullptr;
    std::u16string_view const utf16 = Array::of(array)->text();
    if (!velmara::isAscii(utf16)) [[unlikely]]
        return writeBeyondAscii(utf16);
    char* const text = TextMemory::allocate<char>(utf16.size());
    velmara::copyAscii(utf16, text);
    return text;
}

char* hvArray2String(hvArray_tag const* array)
{
    return hvArrayToString(array);
}

char16_t* hvArrayToString_UTF16(hvArray_tag const* array)
{
    if (!isCharacters(array))
        return nullptr;
    std::u16string_view const utf16 = Array::of(array)->text();
    auto* const text = TextMemory::allocate<char16_t>(utf16.size());
    velmara::copyUnits(utf16, text);
    return text;
}

void hvFree(void* text)
{
    TextMemory::free(text);
}

void hvFreeEx(void* text)
{
    TextMemory::free(text);
}

} // namespace matrix::detail::noninlined::hv_array_api

hvArray* orbis::additions::createText(std::u16string_view text)
{
    velmara::Array* const array = velmara::Array::createText(text.size());
    velmara::copyUnits(text, array->newText());
    return array;
}
