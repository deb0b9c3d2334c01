#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/ArgumentHolder.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/libhv.hpp"

#include <string>

namespace orbis::factory {

/// `std::string`: UTF-8. An argument keeps zeros in the text; a missing array is an empty text. A result ends at its
/// first zero (use `fl::ustring` with a vector of texts, or an array proxy, where that matters). Text that is not
/// well-formed becomes what the host's own conversions make of it (U+FFFD in place of each ill-formed part).
class StringPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<StringPolicy> {
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

    /// Takes character arrays and host string scalars. Throws "VELMARA:class:RequireString" for other arrays, and
    /// "VELMARA:string:MissingNotSupported" for a missing string.
    template <class T>
    static FromM<T> fromHost(hvArray* in)
    {
        return FromM<T>(read(in));
    }

    template <class T>
    static COSNameID dataTypeName()
    {
        return COSNameID(dataTypeText<T>());
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
