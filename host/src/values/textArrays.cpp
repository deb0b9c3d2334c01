#include "values/Array.hpp"
#include "values/TextMemory.hpp"
#include "values/Utf.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"

#include <algorithm>
#include <cstdlib>

namespace matrix::detail::noninlined::hv_array_api {

using velmara::allocateText;
using velmara::Array;

namespace {

bool isCharacters(hvArray_tag const* array)
{
    return array && Array::of(array)->classID() == hvCHAR_CLASS;
}

} // namespace

hvArray* hvCreateString(char const* text)
{
    std::string_view const utf8 = text ? text : "";
    Array* const array = Array::createText(velmara::sizeAsUtf16(utf8));
    velmara::writeAsUtf16(utf8, static_cast<char16_t*>(array->writableElements()));
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
    char* const text = allocateText<char>(velmara::sizeAsUtf8(utf16));
    velmara::writeAsUtf8(utf16, text);
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
    auto* const text = allocateText<char16_t>(utf16.size());
    std::ranges::copy(utf16, text);
    return text;
}

void hvFree(void* text)
{
    std::free(text);
}

void hvFreeEx(void* text)
{
    std::free(text);
}

} // namespace matrix::detail::noninlined::hv_array_api

hvArray* orbis::additions::createText(std::u16string_view text)
{
    velmara::Array* const array = velmara::Array::createText(text.size());
    std::ranges::copy(text, static_cast<char16_t*>(array->writableElements()));
    return array;
}
