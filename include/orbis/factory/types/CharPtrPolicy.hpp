#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/HostTextHolder.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory {

/// `char*` and `char const*`: NUL-terminated UTF-8. An argument is a copy that is freed after the call, and appears to
/// end at the first embedded zero; null for a missing array. A result is copied, so the object may keep it; null
/// converts to an empty text.
class CharPtrPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<CharPtrPolicy> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class T>
    class FromM final : public detail::HostTextHolder<T> {
    public:
        using detail::HostTextHolder<T>::HostTextHolder;
    };

    template <class T>
    static void toHost(char const* value, hvArray** out)
    {
        *out = hvCreateString(value);
    }

    /// Throws like `Marshaler<StringPolicy>::fromHost`.
    template <class T>
    static FromM<char*> fromHost(hvArray* in)
    {
        return FromM<char*>(copyText(in));
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
    static char* copyText(hvArray* in);
};

template <>
struct MarshalingPolicy<char*> {
    using Type = CharPtrPolicy;
};

template <>
struct MarshalingPolicy<char const*> {
    using Type = CharPtrPolicy;
};

} // namespace orbis::factory
