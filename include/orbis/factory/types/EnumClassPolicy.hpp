#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/EnumerationMarshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

namespace orbis::factory {

/// A native enumeration that the library publishes (`HostEnumeration`, `EnumerationClassInfo`). To the host an
/// enumerator is its object; from the host it is that, or a name or number that means it.
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
