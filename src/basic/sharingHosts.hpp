#pragma once

#include "orbis/COSInterface.hpp"

#include <vector>

namespace orbis::factory::detail {

/// The host objects of the current virtual machine that have a share in a shared native object, in no order. They are
/// not looked at: one may have ended by mistake.
std::vector<COSInterface const*> sharingHosts();

/// True when `host`, which is not looked at either, is one of them.
bool hasShare(COSInterface const* host);

} // namespace orbis::factory::detail
