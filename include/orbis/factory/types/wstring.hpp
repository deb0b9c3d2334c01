#pragma once

#include "orbis/factory/base/extractString.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <string>

namespace orbis::factory {

/// `std::wstring`: a text, in UTF-16 or UTF-32 as wide as `wchar_t` is. Lone surrogates and embedded zeros pass
/// unchanged; what is no character becomes U+FFFD.
class WideStringPolicy {};

template <>
class Marshaler<WideStringPolicy> : public detail::DataTypeName<Marshaler<WideStringPolicy>> {
    static constexpr char32_t firstPair = 0x10000;

public:
    template <class T>
    static void toHost(T const& value, hvArray** out)
    {
        fl::ustring text;
        text.reserve(value.size());
        for (wchar_t const unit : value) {
            auto const point = static_cast<char32_t>(unit);
            if (point < firstPair) {
                text += static_cast<char16_t>(point);
            } else if (point <= 0x10FFFF) {
                text += static_cast<char16_t>(0xD800 + ((point - firstPair) >> 10));
                text += static_cast<char16_t>(0xDC00 + ((point - firstPair) & 0x3FF));
            } else {
                text += u'\uFFFD';
            }
        }
        *out = host_extensions::createText(text);
    }

    template <class T>
    static T fromHost(hvArray* in)
    {
        fl::ustring const text = in ? extractString(in) : fl::ustring();
        T wide;
        wide.reserve(text.size());
        for (std::size_t i = 0; i < text.size(); ++i) {
            bool const isPair = sizeof(wchar_t) > sizeof(char16_t) && i + 1 < text.size() &&
                                (text[i] & 0xFC00) == 0xD800 && (text[i + 1] & 0xFC00) == 0xDC00;
            if (!isPair) {
                wide += static_cast<wchar_t>(text[i]);
            } else {
                char32_t const high = text[i] - 0xD800U, low = text[++i] - 0xDC00U;
                wide += static_cast<wchar_t>(firstPair + (high << 10) + low);
            }
        }
        return wide;
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "char vector";
    }
};

template <>
struct MarshalingPolicy<std::wstring> {
    using Type = WideStringPolicy;
    static constexpr bool namesInput = true;
};

} // namespace orbis::factory
