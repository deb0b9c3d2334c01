#pragma once

#include "orbis/factory/detail/bindings/NewObject.hpp"

#include "libhv/hvArray.hpp"

#include <utility>

namespace orbis::factory::detail {

/// How native objects of class `T` are created, and who owns them once they are bound. Specialised for the bases of
/// shared classes.
template <class T>
struct NativeOwnership {
    /// Creates an object. The returned pointer owns it.
    template <class... A>
    static NewObject<T> make(A&&... arguments)
    {
        return NewObject<T>(new T(std::forward<A>(arguments)...));
    }

    /// Transfers ownership of `object` to the host object in `constructed`, to which it is bound: its class info
    /// deletes it.
    static void handOver(NewObject<T> object, hvArray_tag const*) { object.release(); }

    /// Gives the host object in the array, which represents `object`, its share. Here it does nothing: there are no
    /// shares.
    static void share(T const*, hvArray_tag const*) {}
};

} // namespace orbis::factory::detail
