#pragma once

#include "orbis/factory/detail/bindings/NativeOwnership.hpp"
#include "orbis/factory/detail/bindings/hostShares.hpp"

namespace orbis::factory::detail {

/// What native classes of both shared bases have in common: objects are shared from the beginning, the host object has
/// a share, and all shares have one count. `Base` is the shared base.
template <class T, class Base>
struct SharedOwnership {
    template <class Pointer>
    static void handOver(Pointer const& made, hvArray_tag const* constructed)
    {
        shareWithHost(constructed, made);
    }

    /// An object that no shared pointer owns is not shared either: its host object becomes invalid when it ends.
    static void share(T const* object, hvArray_tag const* array)
    {
        if (auto const owner = object ? object->weak_from_this().lock() : nullptr)
            shareWithHost(array, const_pointer_cast<Base>(owner));
    }
};

} // namespace orbis::factory::detail
