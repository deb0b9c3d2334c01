#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/PassedArray.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/types/hvArrayReferenceCountedProxy.hpp"

namespace orbis::factory {

/// `hvArrayReferenceCountedProxy`: any host array, unconverted, shared with the host in both directions.
class HvArrayReferenceCountedPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<HvArrayReferenceCountedPolicy>
    : public detail::DataTypeName<Marshaler<HvArrayReferenceCountedPolicy>> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);

    /// Adds a reference for the host, because the proxy releases its own.
    template <class T>
    static void toHost(T const& value, hvArray** out)
    {
        if (hvArray* const array = value())
            array->add_reference();
        *out = value();
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
};

template <>
struct MarshalingPolicy<hvArrayReferenceCountedProxy> {
    using Type = HvArrayReferenceCountedPolicy;
};

namespace detail {

template <>
struct PassedArray<hvArrayReferenceCountedProxy> : ProxiedArray<hvArrayReferenceCountedProxy> {};

} // namespace detail

} // namespace orbis::factory
