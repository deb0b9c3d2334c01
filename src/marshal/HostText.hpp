#pragma once

#include "libhv/libhv.hpp"

#include <memory>

namespace orbis::factory {

struct FreeEx {
    void operator()(void* text) const { hvFreeEx(text); }
};

/// A string that the host allocated, freed with `hvFreeEx`.
template <class Char>
using HostText = std::unique_ptr<Char[], FreeEx>;

} // namespace orbis::factory
