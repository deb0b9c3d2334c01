#pragma once

#include "orbis/factory/MarshalingPolicy.hpp"
#include "orbis/factory/export.hpp"
#include "orbis/factory/hvArrayProxy.hpp"
#include "orbis/factory/hvConstArrayProxy.hpp"

#include <type_traits>

namespace orbis::factory {

/// `hvArrayProxy` and `hvConstArrayProxy`: any host array, as it is. See there for who owns what.
class HvArrayPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<HvArrayPolicy> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    template <class T>
    static void toHost(T const& value, hvArray** out)
    {
        *out = const_cast<hvArray*>(value());
    }

    template <class T>
    static T fromHost(hvArray* in)
    {
        return T(in);
    }

    template <class T>
    static COSNameID dataTypeName()
    {
        return COSNameID(dataTypeText<T>());
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "any";
    }
};

template <>
struct MarshalingPolicy<hvArrayProxy> {
    using Type = HvArrayPolicy;
};

template <>
struct MarshalingPolicy<hvConstArrayProxy> {
    using Type = HvArrayPolicy;
};

namespace detail {

template <class T>
inline constexpr bool isArrayProxy =
    std::is_same_v<std::remove_cvref_t<T>, hvArrayProxy> || std::is_same_v<std::remove_cvref_t<T>, hvConstArrayProxy>;

} // namespace detail

} // namespace orbis::factory
