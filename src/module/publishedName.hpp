#pragma once

#include "orbis/factory/detail/objects/NamedClass.hpp"

#include <atomic>

namespace orbis::factory {

/// Returns the full name of a class; null until it is published. Threading: on any thread.
inline char const* publishedName(detail::NamedClass const& named)
{
    return std::atomic_ref(const_cast<char const*&>(named.name)).load(std::memory_order_acquire);
}

} // namespace orbis::factory
