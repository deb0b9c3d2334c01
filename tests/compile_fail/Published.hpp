#pragma once

#include "orbis/factory/describe.hpp"

/// Each case defines it.
struct Published;

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};
