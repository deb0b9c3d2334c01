#pragma once

#include "velmara/Listing.hpp"

#include <vector>

namespace velmara {

class Machine;

/// The objects of a virtual machine that have not ended. Nothing is populated or described for it.
std::vector<ObjectRecord> listObjects(Machine& machine);

} // namespace velmara
