#include "orbis/factory/marshaling/PrimitivePolicy.hpp"
#include "orbis/factory/marshaling/StaticCastPolicy.hpp"
#include "orbis/factory/marshaling/TypedDynamicCastCppManagedPolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/marshaling/VelmaraManagedWithInheritancePolicy.hpp"
#include "orbis/factory/types/HvArrayPolicy.hpp"
#include "orbis/factory/types/HvArrayReferenceCountedPolicy.hpp"

// The marshalers of which only their assignments are compiled here.
namespace orbis::factory {

using Primitive = Marshaler<PrimitivePolicy>;
using Array = Marshaler<HvArrayPolicy>;
using CountedArray = Marshaler<HvArrayReferenceCountedPolicy>;
using NoInheritance = Marshaler<VelmaraManagedNoInheritancePolicy>;
using WithInheritance = Marshaler<VelmaraManagedWithInheritancePolicy>;
using Static = Marshaler<StaticCastPolicy>;
using Wrapped = Marshaler<TypedDynamicCastCppManagedPolicy<full::Wrappable>>;

Primitive& Primitive::operator=(Primitive const&) = default;

Primitive& Primitive::operator=(Primitive&&) = default;

Array& Array::operator=(Array const&) = default;

Array& Array::operator=(Array&&) = default;

CountedArray& CountedArray::operator=(CountedArray const&) = default;

CountedArray& CountedArray::operator=(CountedArray&&) = default;

NoInheritance& NoInheritance::operator=(NoInheritance const&) = default;

NoInheritance& NoInheritance::operator=(NoInheritance&&) = default;

WithInheritance& WithInheritance::operator=(WithInheritance const&) = default;

WithInheritance& WithInheritance::operator=(WithInheritance&&) = default;

Static& Static::operator=(Static const&) = default;

Static& Static::operator=(Static&&) = default;

Wrapped& Wrapped::operator=(Wrapped const&) = default;

Wrapped& Wrapped::operator=(Wrapped&&) = default;

} // namespace orbis::factory
