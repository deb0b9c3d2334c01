#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/HostTextHolder.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory {

/// `char16_t*` and `char16_t const*`: NUL-terminated UTF-16, otherwise like `CharPtrPolicy`. Ill-formed text passes
/// unchanged in both directions.
class UnicodeCharPtrPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<UnicodeCharPtrPolicy> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class T>
    class FromM final : public detail::HostTextHolder<T> {
    public:
        using detail::HostTextHolder<T>::HostTextHolder;
    };

    template <class T>
    static void toHost(char16_t const* value, hvArray** out)
    {
        *out = hvCreateString_UTF16(value);
    }

    /// Throws like `Marshaler<StringPolicy>::fromHost`.
    template <class T>
    static FromM<char16_t*> fromHost(hvArray* in)
    {
        return FromM<char16_t*>(copyText(in));
    }

    template <class T>
    static COSNameID dataTypeName()
    {
        return COSNameID(dataTypeText<T>());
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "char";
    }

    /// Does not own the characters.
    template <class T>
    static consteval bool isView()
    {
        return true;
    }

private:
    static char16_t* copyText(hvArray* in);
};

template <>
struct MarshalingPolicy<char16_t*> {
    using Type = UnicodeCharPtrPolicy;
};

template <>
struct MarshalingPolicy<char16_t const*> {
    using Type = UnicodeCharPtrPolicy;
};

} // namespace orbis::factory
