#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/Shareable.hpp"

#include <concepts>

namespace orbis::factory {

/// Publishes a class whose native objects `boost::shared_ptr` owns. A host object has a share in its native object
/// until it ends.
template <class T>
class ShareableHandleClassInfo : public HandleClassInfo<T, 0> {
    static_assert(std::derived_from<T, full::Shareable>,
                  "ShareableHandleClassInfo publishes shared classes: derive the class "
                  "from full::Shareable.");

public:
    using HandleClassInfo<T, 0>::HandleClassInfo;

    /// Forgets the binding and gives up what the host object held; true when there was a binding.
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        detail::releaseHostKeptShareable(object, data);
        return HandleClassInfo<T, 0>::destroyInstanceData(object, data);
    }

    char const* nativeOwner() const override { return "shared"; }
};

} // namespace orbis::factory
