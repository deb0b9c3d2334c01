#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/EnumerationMarshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

namespace orbis::factory {

/// A native enumeration whose host class is written in the host language (`HostEnumeration<E>::isVelmaraImplemented`).
/// Enumerators are matched by name only. Either side may have more: marshaling an enumerator that the other side lacks
/// throws.
class EnumClassVelmaraImplementedPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<EnumClassVelmaraImplementedPolicy> : public detail::EnumerationMarshaler {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

template <PublishedEnumeration E>
    requires detail::isVelmaraImplemented<E>
struct MarshalingPolicy<E> {
    using Type = EnumClassVelmaraImplementedPolicy;
};

} // namespace orbis::factory
