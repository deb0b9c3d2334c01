#pragma once

#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/detail/hostShares.hpp"
#include "orbis/factory/full/SharingType.hpp"
#include "orbis/factory/full/Wrappable.hpp"

namespace orbis::factory::detail {

/// Gives up the reference that is kept for a host object that ends, where its shared native object says that it is the
/// host object's. `data` is null or the address of the native object's `full::Wrappable`, which is looked at only where
/// it must be alive: when it is still bound to `object` (null for any object), or when that has a share in it.
template <class Shared>
void releaseHostKept(COSInterface* object, void* data)
{
    if (!data || (object && basic::BindingRegistry::find(data) != object && !hasShare(object)))
        return;
    auto* const shared = static_cast<Shared*>(static_cast<full::Wrappable*>(data));
    full::SharingType const type = shared->getSharingType();
    if (type == full::SharingType::HostKept || type == full::SharingType::HostKeptAlone)
        releaseReference(shared);
}

} // namespace orbis::factory::detail
