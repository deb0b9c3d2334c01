#pragma once

#include "libhv/hvArray.hpp"

#include <memory>
#include <utility>

namespace orbis::factory::detail {

/// How native objects of class `T` are created, and who owns them once they are bound. Specialised for the bases of
/// shared classes.
template <class T>
struct NativeOwnership {
    /// Creates an object. The returned pointer owns it.
    template <class... A>
    static std::unique_ptr<T> make(A&&... arguments)
    {
        return std::make_unique<T>(std::forward<A>(arguments)...);
    }

    /// Transfers ownership of `object` to the host object in `constructed`, to which it is bound: its class info
    /// deletes it.
    static void handOver(std::unique_ptr<T> object, hvArray_tag const*) { static_cast<void>(object.release()); }

    /// Gives the host object in the array, which represents `object`, its share. Here it does nothing: there are no
    /// shares.
    static void share(T const*, hvArray_tag const*) {}
};

} // namespace orbis::factory::detail
