#include "orbis/factory/marshaling/StaticCastPolicy.hpp"
#include "orbis/factory/marshaling/TypedDynamicCastCppManagedPolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedWithInheritancePolicy.hpp"

namespace orbis::factory {

using NoInheritance = Marshaler<VelmaraManagedNoInheritancePolicy>;
using WithInheritance = Marshaler<VelmaraManagedWithInheritancePolicy>;
using Static = Marshaler<StaticCastPolicy>;
using Wrapped = Marshaler<TypedDynamicCastCppManagedPolicy<full::Wrappable>>;

NoInheritance& NoInheritance::operator=(NoInheritance const&) = default;

NoInheritance& NoInheritance::operator=(NoInheritance&&) = default;

WithInheritance& WithInheritance::operator=(WithInheritance const&) = default;

WithInheritance& WithInheritance::operator=(WithInheritance&&) = default;

Static& Static::operator=(Static const&) = default;

Static& Static::operator=(Static&&) = default;

Wrapped& Wrapped::operator=(Wrapped const&) = default;

Wrapped& Wrapped::operator=(Wrapped&&) = default;

} // namespace orbis::factory
