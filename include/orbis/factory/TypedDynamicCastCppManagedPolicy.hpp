#pragma once

#include "orbis/factory/Marshaler.hpp"
#include "orbis/factory/detail/ObjectPointerMarshaler.hpp"

namespace orbis::factory {

/// Pointers to classes derived from `Base`, as which their objects are bound; an object of another class gives null.
template <class Base>
class TypedDynamicCastCppManagedPolicy {};

template <class Base>
class Marshaler<TypedDynamicCastCppManagedPolicy<Base>>
    : public detail::ObjectPointerMarshaler<detail::DynamicCast<Base>> {};

} // namespace orbis::factory
