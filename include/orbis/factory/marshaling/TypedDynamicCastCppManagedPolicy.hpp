#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/objects/ObjectPointerMarshaler.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

namespace orbis::factory {

/// Pointers to classes derived from `Base`, as which their objects are bound. An object of another class converts to
/// null.
template <class Base>
class TypedDynamicCastCppManagedPolicy {};

namespace detail {

template <class Base>
struct AlwaysAs {
    template <class>
    using Type = Base;
};

} // namespace detail

template <class Base>
class Marshaler<TypedDynamicCastCppManagedPolicy<Base>>
    : public detail::ObjectPointerMarshaler<detail::DynamicCast<detail::AlwaysAs<Base>::template Type>> {};

template <>
class ORBIS_FACTORY_API Marshaler<TypedDynamicCastCppManagedPolicy<full::Wrappable>>
    : public detail::ObjectPointerMarshaler<detail::DynamicCast<detail::AlwaysAs<full::Wrappable>::Type>> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

} // namespace orbis::factory
