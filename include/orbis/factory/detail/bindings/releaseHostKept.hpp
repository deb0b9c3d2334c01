#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"

namespace orbis::factory::detail {

/// Releases the reference that `acquireReference` keeps, if the object's `getSharingType` says that it is the host
/// object's; for class infos, when the host object `object` (null: any) is destroyed. `data` is null or the address of
/// the native object's `full::Wrappable`. It is dereferenced only while it is kept, and therefore alive: an object that
/// was destroyed while no virtual machine was current could not notify its host object.
ORBIS_FACTORY_API void releaseHostKeptShareable(COSInterface const* object, void* data);
ORBIS_FACTORY_API void releaseHostKeptStdShareable(COSInterface const* object, void* data);

} // namespace orbis::factory::detail
