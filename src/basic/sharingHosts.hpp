#pragma once

#include "orbis/COSInterface.hpp"

#include <vector>

namespace orbis::factory::detail {

/// The host objects of the current virtual machine that have a share in a shared native object, in no order. They are
/// not looked at: one may have ended by mistake.
std::vector<COSInterface const*> sharingHosts();

} // namespace orbis::factory::detail
