#pragma once

#include "libhv/libhv.hpp"

#include <memory>

namespace velmara {

/// An array with its owner.
using ArrayPtr = std::unique_ptr<hvArray_tag, hvDestroy_deleter>;

} // namespace velmara
