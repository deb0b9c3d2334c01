#pragma once

#include "orbis/factory/detail/bindings/NativeOwnership.hpp"
#include "orbis/factory/detail/bindings/hostShares.hpp"

namespace orbis::factory::detail {

/// Common ownership of both shared bases: objects are shared from their creation, the host object holds a share, and
/// all shares have one reference count. `Base` is the shared base.
template <class T, class Base>
struct SharedOwnership {
    template <class Pointer>
    static void handOver(Pointer const& object, hvArray_tag const* constructed)
    {
        shareWithHost(constructed, object);
    }

    /// Does nothing for an object that no shared pointer owns: its host object becomes invalid when the object is
    /// destroyed.
    static void share(T const* object, hvArray_tag const* array)
    {
        if (auto const owner = object ? object->weak_from_this().lock() : nullptr)
            shareWithHost(array, const_pointer_cast<Base>(owner));
    }
};

} // namespace orbis::factory::detail
