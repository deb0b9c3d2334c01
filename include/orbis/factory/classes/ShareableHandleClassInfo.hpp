#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/Shareable.hpp"

#include <concepts>
#include <string>

namespace orbis::factory {

/// Class info of a class whose native objects `boost::shared_ptr` owns. A host object holds a share in its native
/// object until it is destroyed.
template <class T>
class ShareableHandleClassInfo : public HandleClassInfo<T, 0> {
public:
    /// `name` is the full dotted one, `description` a text for users.
    ShareableHandleClassInfo(std::string const& name, std::string const& description)
        : HandleClassInfo<T, 0>(name, description)
    {
        if constexpr (!std::derived_from<T, full::Shareable>)
            detail::refuse<detail::Refusal::NoShareableBase, T>();
    }

    /// Removes the binding and releases what the host object holds. Returns whether there was a binding.
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        detail::releaseHostKeptShareable(object, data);
        return HandleClassInfo<T, 0>::destroyInstanceData(object, data);
    }

    char const* nativeOwner() const override { return "shared"; }
};

} // namespace orbis::factory
