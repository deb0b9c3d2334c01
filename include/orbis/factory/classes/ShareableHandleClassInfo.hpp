#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/Shareable.hpp"

#include <concepts>

namespace orbis::factory {

/// Class info of a class whose native objects `boost::shared_ptr` owns. A host object holds a share in its native
/// object until it is destroyed.
template <class T>
class ShareableHandleClassInfo : public HandleClassInfo<T, 0> {
    static_assert(std::derived_from<T, full::Shareable>,
                  "ShareableHandleClassInfo publishes shared classes: derive the class "
                  "from full::Shareable.");

public:
    using HandleClassInfo<T, 0>::HandleClassInfo;

    /// Removes the binding and releases what the host object holds. Returns whether there was a binding.
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        detail::releaseHostKeptShareable(object, data);
        return HandleClassInfo<T, 0>::destroyInstanceData(object, data);
    }

    char const* nativeOwner() const override { return "shared"; }
};

} // namespace orbis::factory
