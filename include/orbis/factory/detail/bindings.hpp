#pragma once

#include "orbis/factory/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSNameID.hpp"

/// What constructors and class infos do with bindings.
namespace orbis::factory::detail {

/// `basic::BindingRegistry::announceForConstructor` for a host object that the caller holds.
ORBIS_FACTORY_API void bindConstructed(COSInterface* host, COSNameID const& className, void* object, bool store);

/// Forgets the binding of `object` to `host` (null for any host object) for a class info whose host object ends; true
/// when there was one. An address that was released and has been bound to another host object since is that one's.
ORBIS_FACTORY_API bool forgetBinding(COSInterface const* host, void const* object);

} // namespace orbis::factory::detail
