#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "libhv/hvArray.hpp"

namespace orbis::factory {

/// `char`: one byte of UTF-8 text. Zero converts to an empty text. Of a longer text only the first byte is read. A byte
/// beyond ASCII is not valid UTF-8 by itself, and reaches the host as U+FFFD.
class CharPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<CharPolicy> : public detail::DataTypeName<Marshaler<CharPolicy>> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class T>
    static void toHost(T value, hvArray** out)
    {
        *out = makeText(value);
    }

    template <class T>
    static T fromHost(hvArray* in)
    {
        return firstByte(in);
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "char";
    }

private:
    static hvArray* makeText(char value);

    /// Throws like `Marshaler<StringPolicy>::fromHost`.
    static char firstByte(hvArray* in);
};

template <>
struct MarshalingPolicy<char> {
    using Type = CharPolicy;
};

} // namespace orbis::factory
