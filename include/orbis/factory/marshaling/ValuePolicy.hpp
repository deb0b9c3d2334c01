#pragma once

#include "orbis/factory/base/validateSelfPointer.hpp"
#include "orbis/factory/detail/arrays/throwNullInput.hpp"
#include "orbis/factory/detail/objects/ObjectPointerMarshaler.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include <type_traits>

namespace orbis::factory {

namespace detail {

/// The "cast" of value classes, whose native objects live inside their host objects and are not bound.
struct InstanceData {
    static constexpr bool isHandle = false;
    static constexpr bool isHeterogeneous = false;

    template <class T>
    static T* fromBound(void* object)
    {
        return static_cast<T*>(object);
    }

    template <class T>
    static void* toBound(T* object)
    {
        return object;
    }

    /// Returns an array with a new host object that holds a copy of the value; 0-by-0 for null.
    template <class T>
    static hvArray* announce(T const* value)
    {
        COSNameID const name(HostClass<T>::name);
        if (!value)
            return omCreateORBISMatrix(0, 0, name);
        return basic::BindingRegistry::announceWithoutStoring(const_cast<T*>(value), name, [](void* to, void* from) {
            impl::validateSelfPointer(to);
            *static_cast<T*>(to) = *static_cast<T const*>(from);
        });
    }
};

} // namespace detail

/// Pointers to value classes, which name it as `Policy` in their `HostClass`. An argument points to the native object
/// inside the host object; a result becomes a new host object with a copy.
class ValuePolicy {};

template <>
class Marshaler<ValuePolicy> : public detail::ObjectPointerMarshaler<detail::InstanceData> {
public:
    /// The object is destroyed with its host object, regardless of pointers to it.
    template <ValueClass T>
    static consteval bool isView()
    {
        return true;
    }
};

/// The same for value classes themselves and references to them. Throws the `null_input` error when the host passes no
/// object.
class ValueObjectPolicy {};

template <>
class Marshaler<ValueObjectPolicy> : public Marshaler<ValuePolicy> {
    using Pointers = Marshaler<ValuePolicy>;

public:
    template <ValueClass T>
    static void toHost(T const& value, hvArray** out)
    {
        Pointers::toHost<T>(&value, out);
    }

    template <ValueClass T>
    static T const& fromHost(hvArray_tag const* in)
    {
        T const* const value = Pointers::fromHost<T>(in);
        if (!value)
            detail::throwNullInput(in, HostClass<T>::name);
        return *value;
    }

    template <ValueClass T>
    static consteval bool refusesNull()
    {
        return true;
    }

    template <ValueClass T>
    static consteval bool isView()
    {
        return false;
    }
};

template <ValueClass T>
struct MarshalingPolicy<T> {
    using Type = ValueObjectPolicy;
};

} // namespace orbis::factory
