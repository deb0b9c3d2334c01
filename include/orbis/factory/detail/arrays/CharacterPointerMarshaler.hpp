#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/HostTextHolder.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory::detail {

/// Stores a copy of the text of `in`, to be freed with `hvFreeEx`; null for a missing array. Throws like
/// `Marshaler<StringPolicy>::fromHost`.
ORBIS_FACTORY_API void copyText(hvArray const* in, char*& text);
ORBIS_FACTORY_API void copyText(hvArray const* in, char16_t*& text);

inline hvArray* newText(char const* text)
{
    return hvCreateString(text);
}

inline hvArray* newText(char16_t const* text)
{
    return hvCreateString_UTF16(text);
}

/// Base of the marshalers of pointers to NUL-terminated text of `Char`. An argument is a copy that is freed after the
/// call, and appears to end at the first embedded zero; null for a missing array. A result is copied, so the object may
/// keep it; null converts to an empty text.
template <class Marshaler, class Char>
class CharacterPointerMarshaler : public DataTypeName<Marshaler> {
public:
    template <class T>
    class FromM final : public HostTextHolder<T> {
    public:
        using HostTextHolder<T>::HostTextHolder;
    };

    template <class T>
    static void toHost(Char const* value, hvArray** out)
    {
        *out = newText(value);
    }

    template <class T>
    static FromM<Char*> fromHost(hvArray const* in)
    {
        Char* text = nullptr;
        copyText(in, text);
        return FromM<Char*>(text);
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
};

} // namespace orbis::factory::detail
