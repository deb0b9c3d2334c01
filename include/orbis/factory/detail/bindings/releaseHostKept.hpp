#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"

namespace orbis::factory::detail {

/// Gives up the reference that `acquireReference` keeps for a host object that ends (null for any), where its shared
/// native object says that it is the host object's. `data` is null or the address of the native object's
/// `full::Wrappable`. That is looked at only while it is kept, and so alive: it may have ended where no virtual machine
/// was current, and its host object was not told.
ORBIS_FACTORY_API void releaseHostKeptShareable(COSInterface const* object, void* data);
ORBIS_FACTORY_API void releaseHostKeptStdShareable(COSInterface const* object, void* data);

} // namespace orbis::factory::detail
