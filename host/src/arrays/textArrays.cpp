#include "arrays/Array.hpp"
#include "memory/TextAllocator.hpp"
#include "text/copyUnits.hpp"
#include "text/utf.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"

namespace matrix::detail::noninlined::hv_array_api {

using velmara::Array;
using velmara::TextAllocator;

namespace {

bool isCharacters(hvArray_tag const* array)
{
    return array && Array::of(array)->classID() == hvCHAR_CLASS;
}

} // namespace

hvArray* hvCreateString(char const* text)
{
    return orbis::host_extensions::createText(std::string_view(text ? text : ""));
}

hvArray* hvCreateString_UTF16(char16_t const* text)
{
    return orbis::host_extensions::createText(std::u16string_view(text ? text : u""));
}

char* hvArrayToString(hvArray_tag const* array)
{
    if (!isCharacters(array))
        return nullptr;
    return velmara::convertTo(Array::of(array)->text(), TextAllocator::allocate<char>, [](char* text) { return text; });
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
    auto* const text = TextAllocator::allocate<char16_t>(utf16.size());
    velmara::copyUnits(utf16, text);
    return text;
}

void hvFree(void* text)
{
    TextAllocator::free(text);
}

void hvFreeEx(void* text)
{
    TextAllocator::free(text);
}

} // namespace matrix::detail::noninlined::hv_array_api

namespace orbis::host_extensions {

hvArray* createText(std::u16string_view text)
{
    velmara::Array* const array = velmara::Array::createText(text.size());
    velmara::copyUnits(text, array->writableText());
    return array;
}

hvArray* createText(std::string_view text)
{
    return velmara::convertTo(text, velmara::Array::createText,
                              [](velmara::Array* array) { return array->writableText(); });
}

std::size_t utf8Size(std::u16string_view text)
{
    return velmara::isAscii(text) ? text.size() : velmara::convertedSize(text);
}

void writeUtf8(std::u16string_view text, char* out)
{
    if (velmara::isAscii(text))
        velmara::copyAscii(text, out);
    else
        velmara::convert(text, out);
}

} // namespace orbis::host_extensions
