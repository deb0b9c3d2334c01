#pragma once

#include "velmara/Hvm.hpp"

#include <functional>
#include <string>

namespace velmara::console {

/// A package, class or function by its full name.
struct PublishedName {
    std::string name;
    NameKind kind;
    std::string description; ///< of packages and functions; a class is not asked for one
};

/// Visits all packages, each before its classes and functions and these before the packages in it. An overloaded
/// function comes once for each overload.
void visitPublished(Hvm& hvm, std::function<void(PublishedName const&)> const& visit);

} // namespace velmara::console
