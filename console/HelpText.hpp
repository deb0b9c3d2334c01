#pragma once

#include "velmara/Listing.hpp"

#include <string>
#include <string_view>

namespace velmara::console {

/// Help on what is published, in 80 columns: what a script may use, as it would write it.
std::string helpText(PackageRecord const& package);
std::string helpText(ClassRecord const& cls);

/// Help on a callable member with all its overloads, or on a property; empty when the class has none of the name.
std::string helpText(ClassRecord const& cls, std::string_view member);

/// A package function.
std::string helpText(MethodRecord const& function);

/// The lists alone.
std::string methodsText(ClassRecord const& cls);
std::string functionsText(PackageRecord const& package);
std::string propertiesText(ClassRecord const& cls);

/// "getSum(a: int32 scalar, b: int32 scalar) -> int32 scalar": without the object that a method is called on.
std::string signatureText(MethodRecord const& method);

} // namespace velmara::console
