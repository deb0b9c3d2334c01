#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/ObjectPointerMarshaler.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"

namespace orbis::factory {

/// Pointers to a published class whose objects are bound as a base class (`HostClass<T>::Root`) and are known to be of
/// this class: no dynamic cast is needed.
class StaticCastPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<StaticCastPolicy> : public detail::ObjectPointerMarshaler<detail::StaticCast> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

} // namespace orbis::factory
