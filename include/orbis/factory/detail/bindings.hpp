#pragma once

#include "orbis/factory/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSNameID.hpp"

/// What constructors and class infos do with bindings.
namespace orbis::factory::detail {

/// `basic::BindingRegistry::announceForConstructor` of a handle class, for a host object that the caller holds and a
/// native object that is not null. False when that is bound to another host object already, and stays so.
ORBIS_FACTORY_API bool bindConstructed(COSInterface* host, COSNameID const& className, void* object);

/// Forgets the binding of `object` to `host` (null for any host object) for a class info whose host object ends: gives
/// `object` when there was one, else null. An address that was released and has been bound to another host object since
/// is that one's.
ORBIS_FACTORY_API void* forgetBinding(COSInterface const* host, void* object);

} // namespace orbis::factory::detail
