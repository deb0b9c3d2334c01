#pragma once

#include "orbis/factory/Marshaler.hpp"
#include "orbis/factory/detail/ObjectPointerMarshaler.hpp"
#include "orbis/factory/export.hpp"

namespace orbis::factory {

/// Pointers to a published class that has no published subclasses. The object is bound as its own class.
class VelmaraManagedNoInheritancePolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<VelmaraManagedNoInheritancePolicy>
    : public detail::ObjectPointerMarshaler<detail::StaticCast> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

} // namespace orbis::factory
