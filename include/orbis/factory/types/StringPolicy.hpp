#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/ArgumentHolder.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/libhv.hpp"

#include <string>

namespace orbis::factory {

/// `std::string`: UTF-8. An argument keeps embedded zeros; a missing array converts to an empty text. A result ends at
/// its first zero; where that matters, return an array proxy or a `std::vector<std::string>`. Ill-formed text is
/// converted as by the host: each ill-formed part becomes U+FFFD.
class StringPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<StringPolicy> : public detail::DataTypeName<Marshaler<StringPolicy>> {
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
        *out = hvCreateString(value.c_str());
    }

    /// Accepts character arrays and host string scalars. Throws "VELMARA:class:RequireString" for other arrays, and
    /// "VELMARA:string:MissingNotSupported" for a missing string.
    template <class T>
    static FromM<T> fromHost(hvArray* in)
    {
        return FromM<T>(read(in));
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "char vector";
    }

private:
    static std::string read(hvArray* in);
};

template <>
struct MarshalingPolicy<std::string> {
    using Type = StringPolicy;
};

} // namespace orbis::factory
