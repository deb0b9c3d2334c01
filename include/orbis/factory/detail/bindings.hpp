#pragma once

#include "orbis/factory/export.hpp"

#include "orbis/COSInterface.hpp"

namespace orbis::factory::detail {

/// Forgets the binding of `object` to `host` (null for any host object) for a class info whose host object ends; true
/// when there was one. An address that was released and has been bound to another host object since is that one's.
ORBIS_FACTORY_API bool forgetBinding(COSInterface const* host, void const* object);

} // namespace orbis::factory::detail
