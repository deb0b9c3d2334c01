#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/PassedArray.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/types/hvArrayProxy.hpp"
#include "orbis/factory/types/hvConstArrayProxy.hpp"

namespace orbis::factory {

/// `hvArrayProxy` and `hvConstArrayProxy`: any host array, unconverted. Ownership is documented there.
class HvArrayPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<HvArrayPolicy> : public detail::DataTypeName<Marshaler<HvArrayPolicy>> {
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
    static constexpr char const* dataTypeText()
    {
        return "any";
    }

    /// Does not own the array.
    template <class T>
    static consteval bool isView()
    {
        return true;
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

template <>
struct PassedArray<hvArrayProxy> : ProxiedArray<hvArrayProxy> {};

template <>
struct PassedArray<hvConstArrayProxy> : ProxiedArray<hvConstArrayProxy> {};

} // namespace detail

} // namespace orbis::factory
