#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/bindings/hostShares.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"
#include "orbis/factory/marshaling/ReferredObjects.hpp"
#include "orbis/factory/ownership/Shareable.hpp"
#include "orbis/factory/ownership/StdShareable.hpp"

#include <concepts>
#include <type_traits>

namespace orbis::factory {

namespace detail {

/// Throws the error of an object that must be shared and that no shared pointer owns.
[[noreturn]] ORBIS_FACTORY_API void throwNotShared(char const* className);

} // namespace detail

/// `boost::shared_ptr` and `std::shared_ptr` to published classes derived from `full::Shareable` and
/// `full::StdShareable`. Objects are marshaled as raw pointers to them are, and all shares have one reference count:
/// the host object holds a share until it is destroyed, and a converted argument holds another. An empty pointer is
/// null.
class SharedPointerPolicy {};

template <>
class Marshaler<SharedPointerPolicy> : public detail::DataTypeName<Marshaler<SharedPointerPolicy>> {
    template <class Pointer>
    using Class = std::remove_const_t<typename Pointer::element_type>;

    template <class Pointer>
    using RawPointers = detail::MarshalerOf<Class<Pointer>*>;

public:
    template <class Pointer>
    static void toHost(Pointer const& value, hvArray** out)
    {
        detail::NewArray array;
        RawPointers<Pointer>::template toHost<Class<Pointer>>(value.get(), array.place());
        // A pointer to a subobject (aliasing constructor) has another owner, which `weak_from_this` does not know.
        if (value && value->weak_from_this().expired())
            detail::shareWithHost(array.get(), const_pointer_cast<Class<Pointer>>(value));
        *out = array.release();
    }

    template <class Pointer>
    static Pointer fromHost(hvArray_tag const* in)
    {
        return share<Pointer>(RawPointers<Pointer>::template fromHost<Class<Pointer>>(in));
    }

    template <class Pointer>
    static Pointer fromObject(COSInterface const* object)
    {
        return share<Pointer>(RawPointers<Pointer>::template fromObject<Class<Pointer>>(object));
    }

    template <class Pointer>
    static char const* dataTypeText()
    {
        return HostClass<Class<Pointer>>::name;
    }

private:
    /// Returns a pointer that shares the object's own reference count.
    template <class Pointer>
    static Pointer share(Class<Pointer>* object)
    {
        if (!object)
            return {};
        auto const owner = object->weak_from_this().lock();
        if (!owner)
            detail::throwNotShared(HostClass<Class<Pointer>>::name);
        return Pointer(owner, object);
    }
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>>
struct MarshalingPolicy<boost::shared_ptr<T>> {
    static constexpr detail::Refusal refusal =
        std::derived_from<T, full::Shareable> ? detail::Refusal::None : detail::Refusal::NotShareable;
    using Type = SharedPointerPolicy;
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>>
struct MarshalingPolicy<std::shared_ptr<T>> {
    static constexpr detail::Refusal refusal =
        std::derived_from<T, full::StdShareable> ? detail::Refusal::None : detail::Refusal::NotStdShareable;
    using Type = SharedPointerPolicy;
};

namespace detail {

template <class T>
struct ReferredObjects<boost::shared_ptr<T>> : ReferredObject<boost::shared_ptr<T>> {};

template <class T>
struct ReferredObjects<std::shared_ptr<T>> : ReferredObject<std::shared_ptr<T>> {};

} // namespace detail
} // namespace orbis::factory
