#pragma once

#include <cstdint>

namespace velmara {

/// True when `id` was given out by `getNextID`.
bool isStorageID(std::uint64_t id);

} // namespace velmara
