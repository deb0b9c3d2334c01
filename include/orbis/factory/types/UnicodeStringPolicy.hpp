#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/base/extractString.hpp"
#include "orbis/factory/detail/arrays/ArgumentHolder.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory {

/// `fl::ustring`: UTF-16. Ill-formed text passes unchanged. An argument keeps embedded zeros; a missing array converts
/// to an empty text. A result ends at its first zero.
class UnicodeStringPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<UnicodeStringPolicy> : public detail::DataTypeName<Marshaler<UnicodeStringPolicy>> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class T>
    class FromM final : public detail::ValueHolder<T> {
    public:
        using detail::ValueHolder<T>::ValueHolder;
    };

    template <class T>
    static void toHost(T const& value, hvArray** out)
    {
        *out = hvCreateString_UTF16(value.c_str());
    }

    /// Accepts character arrays and host string scalars; throws like `extractString`.
    template <class T>
    static FromM<T> fromHost(hvArray* in)
    {
        return FromM<T>(in ? extractString(in) : T());
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "OrbisFactoryString scalar";
    }
};

template <>
struct MarshalingPolicy<fl::ustring> {
    using Type = UnicodeStringPolicy;
};

} // namespace orbis::factory
