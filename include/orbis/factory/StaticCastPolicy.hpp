#pragma once

#include "orbis/factory/Marshaler.hpp"
#include "orbis/factory/detail/ObjectPointerMarshaler.hpp"
#include "orbis/factory/export.hpp"

namespace orbis::factory {

/// Pointers to a published class whose objects are bound as a base class (`HostClass<T>::Root`) and are known to be
/// of this one.
class StaticCastPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<StaticCastPolicy> : public detail::ObjectPointerMarshaler<detail::StaticCast> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

} // namespace orbis::factory
