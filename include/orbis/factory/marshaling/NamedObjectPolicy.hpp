#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/NewObject.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/marshaling/Marshaler.hpp"

#include <concepts>
#include <utility>

namespace orbis::factory {

/// Pointers to classes that a `Module` names. A result belongs to native code.
class NamedPointerPolicy {};

template <>
class Marshaler<NamedPointerPolicy> : public detail::DataTypeName<Marshaler<NamedPointerPolicy>> {
public:
    static constexpr bool isHandle = true;
    static constexpr bool isHeterogeneous = true;

    template <NamedType T>
    static void* boundAddress(T* object)
    {
        return detail::toBound(detail::namedClassOf<T>(), object);
    }

    template <NamedType T>
    static T* fromBound(void* bound)
    {
        return static_cast<T*>(detail::fromBound(detail::namedClassOf<T>(), bound));
    }

    template <NamedType T>
    static void toHost(T const* value, hvArray** out)
    {
        *out = detail::announceNamed(detail::namedClassOf<T>(), value, ResultOwner::Native, nullptr);
    }

    template <NamedType T>
    static T* fromHost(hvArray_tag const* in)
    {
        return static_cast<T*>(detail::nativeOf(detail::namedClassOf<T>(), in));
    }

    template <NamedType T>
    static T* fromObject(COSInterface const* object)
    {
        return static_cast<T*>(detail::nativeOf(detail::namedClassOf<T>(), object));
    }

    template <NamedType T>
    static char const* dataTypeText()
    {
        return detail::className(detail::namedClassOf<T>());
    }
};

/// The classes themselves and references to them. An argument refers to the object that scripts pass, and must be one;
/// a result by value becomes a new object, which the host owns.
class NamedObjectPolicy {};

template <>
class Marshaler<NamedObjectPolicy> : public detail::DataTypeName<Marshaler<NamedObjectPolicy>> {
public:
    /// Refers to an object for the length of a call: `Argument` passes it on as a reference.
    template <class T>
    struct Reference {
        T& object;
    };

    template <NamedType T, class V>
        requires std::constructible_from<T, V&&>
    static void toHost(V&& value, hvArray** out)
    {
        *out =
            detail::announceNamed(detail::namedClassOf<T>(), new T(std::forward<V>(value)), ResultOwner::Host, nullptr);
    }

    template <NamedType T>
    static Reference<T> fromHost(hvArray_tag const* in)
    {
        return {*static_cast<T*>(detail::requireNativeOf(detail::namedClassOf<T>(), in))};
    }

    template <NamedType T>
    static char const* dataTypeText()
    {
        return detail::className(detail::namedClassOf<T>());
    }

    template <NamedType T>
    static consteval bool refusesNull()
    {
        return true;
    }
};

} // namespace orbis::factory
