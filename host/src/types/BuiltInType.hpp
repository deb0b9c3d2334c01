#pragma once

#include "types/TypeReference.hpp"

#include "orbis/COSDataType.hpp"

namespace velmara {

/// A new data type of the host's own, or the type of a published class: its values are native scalars for the
/// scalar types, host arrays for the others.
orbis::COSDataType* createBuiltInType(TypeReference const& type);

} // namespace velmara
