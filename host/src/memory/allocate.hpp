#pragma once

#include <cstddef>

namespace velmara {

/// Memory from the system, which `std::free` releases. Throws `foundation::core::except::bad_alloc`.
void* allocate(std::size_t size);

} // namespace velmara
