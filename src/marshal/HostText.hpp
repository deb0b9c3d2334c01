#pragma once

#include "libhv/libhv.hpp"

#include <memory>

namespace orbis::factory {

struct FreeEx {
    void operator()(void* text) const { hvFreeEx(text); }
};

/// A text that the host allocated and `hvFreeEx` frees.
template <class Char>
using HostText = std::unique_ptr<Char[], FreeEx>;

} // namespace orbis::factory
