#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/EnumerationMarshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

namespace orbis::factory {

/// A native enumeration that the library publishes (`HostEnumeration`, `EnumerationClassInfo`). Passed to the host as
/// the enumerator's object. Scripts may also pass an enumerator's name or number.
class EnumClassPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<EnumClassPolicy> : public detail::EnumerationMarshaler {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

template <PublishedEnumeration E>
struct MarshalingPolicy<E> {
    using Type = EnumClassPolicy;
};

} // namespace orbis::factory
