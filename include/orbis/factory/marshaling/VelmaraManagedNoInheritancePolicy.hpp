#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/ObjectPointerMarshaler.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"

namespace orbis::factory {

/// Pointers to a published class without published subclasses. Objects are bound as their own class.
class VelmaraManagedNoInheritancePolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<VelmaraManagedNoInheritancePolicy>
    : public detail::ObjectPointerMarshaler<detail::StaticCast> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

} // namespace orbis::factory
