#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/ObjectPointerMarshaler.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"

namespace orbis::factory {

/// Pointers to a published class with published subclasses. Objects are bound as the root class of the hierarchy
/// (`HostClass<T>::Root`), which must be polymorphic. An object of another class of the hierarchy converts to null.
class VelmaraManagedWithInheritancePolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<VelmaraManagedWithInheritancePolicy>
    : public detail::ObjectPointerMarshaler<detail::DynamicCastFromRoot> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

} // namespace orbis::factory
