#pragma once

#include "libhv/hvArray.hpp"

#include <memory>
#include <utility>

namespace orbis::factory::detail {

/// How native objects of the class `T` are made and owned when host objects stand for them. The bases of shared
/// classes specialise it.
template <class T>
struct NativeOwnership {
    /// A new object, owned by what is returned.
    template <class... A>
    static std::unique_ptr<T> make(A&&... arguments)
    {
        return std::make_unique<T>(std::forward<A>(arguments)...);
    }

    /// The host object in `constructed` is bound to `made`: the class info says when it is deleted.
    static void handOver(std::unique_ptr<T> made, hvArray_tag const*) { static_cast<void>(made.release()); }

    /// The host object in the array stands for `object`: that is no owner.
    static void share(T const*, hvArray_tag const*) {}
};

} // namespace orbis::factory::detail
