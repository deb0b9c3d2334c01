#pragma once

#include "velmara/ArrayPtr.hpp"

#include <string>

namespace velmara {

/// An object that another object refers to through a property.
struct Reference {
    std::string property; ///< its name
    ArrayPtr object;      ///< 1-by-1
};

} // namespace velmara
