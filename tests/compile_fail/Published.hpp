#pragma once

#include "orbis/factory/classes/HostClass.hpp"

/// Each case defines it.
struct Published;

template <>
struct orbis::factory::HostClass<Published> {
    static constexpr char const* name = "tests.Published";
};
