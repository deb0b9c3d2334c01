#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/classes/NativeClassRecord.hpp"
#include "orbis/factory/detail/objects/announceMostDerived.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include <type_traits>
#include <typeinfo>

/// Casts between an object, the address under which it is bound, and the host.
namespace orbis::factory::detail {

/// The object is bound as its root class, and recovered by a static cast.
struct StaticCast {
    static constexpr bool isHandle = true;
    static constexpr bool isHeterogeneous = false;

    template <class T>
    static void* toBound(T* object)
    {
        return static_cast<RootClass<T>*>(object);
    }

    template <class T>
    static T* fromBound(void* object)
    {
        return static_cast<T*>(static_cast<RootClass<T>*>(object));
    }

    template <class T>
    static hvArray* announce(T const* object)
    {
        return basic::BindingRegistry::announce(toBound(const_cast<T*>(object)), COSNameID(HostClass<T>::name));
    }
};

/// The object is bound as `Base<T>`, and recovered by a dynamic cast: null for an object of another class.
template <template <class T> class Base>
struct DynamicCast {
    static constexpr bool isHandle = true;
    static constexpr bool isHeterogeneous = true;

    template <class T>
    static void* toBound(T* object)
    {
        return static_cast<Base<T>*>(object);
    }

    template <class T>
    static T* fromBound(void* object)
    {
        return dynamic_cast<T*>(static_cast<Base<T>*>(object));
    }

    /// Returns an array with the object as one of its most derived published class.
    template <class T>
    static hvArray* announce(T const* object)
    {
        return announceMostDerived(toBound(const_cast<T*>(object)), object ? typeid(*object) : typeid(T),
                                   nativeClassRecord<T>());
    }
};

using DynamicCastFromRoot = DynamicCast<RootClass>;

} // namespace orbis::factory::detail
