// UTF-8 and UTF-16: conversion in both directions, directly and through arrays.
#include "fuzz/require.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <cstring>
#include <memory>

using fl::i18n::to_string;
using fl::i18n::to_ustring;

namespace {

bool isWellFormed(std::u16string const& text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        bool const isHigh = (text[i] & 0xFC00) == 0xD800, isLow = (text[i] & 0xFC00) == 0xDC00;
        bool const isPair = isHigh && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
        if (isLow || (isHigh && !isPair))
            return false;
        i += isPair;
    }
    return true;
}

void checkArray(std::u16string const& text)
{
    std::unique_ptr<hvArray, hvDestroy_deleter> const array(orbis::host_extensions::createText(text));
    require(array->get_number_of_elements() == text.size(), "the array has another size");
    std::unique_ptr<char16_t, void (*)(void*)> const wide(hvArrayToString_UTF16(array.get()), hvFreeEx);
    require(std::memcmp(wide.get(), text.c_str(), 2 * (text.size() + 1)) == 0, "another text comes from the array");
    std::unique_ptr<char, void (*)(void*)> const narrow(hvArrayToString(array.get()), hvFreeEx);
    require(narrow.get() == std::string(to_string(text).c_str()), "another narrow text comes from the array");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const narrow(reinterpret_cast<char const*>(data), size);
    std::u16string const fromNarrow = to_ustring(narrow);
    require(isWellFormed(fromNarrow), "UTF-16 that was made of bytes is ill-formed");
    std::string const back = to_string(fromNarrow);
    require(to_ustring(back) == fromNarrow, "UTF-8 that was made does not come back");
    require(back.find("\xEF\xBF\xBD") != std::string::npos || back == narrow, "well-formed bytes have changed");

    std::u16string wide(size / 2, u'\0');
    std::memcpy(wide.data(), data, 2 * wide.size());
    std::u16string const again = to_ustring(to_string(wide));
    require(again.size() == wide.size() && (again == wide) == isWellFormed(wide), "UTF-16 does not come back");
    checkArray(wide);
    checkArray(fromNarrow);
    return 0;
}
