#pragma once

#include "velmara/Listing.hpp"

#include <string>
#include <string_view>

namespace velmara::console {

/// Help on what is published, in 80 columns: what a script may use, in the form in which it is written.
std::string helpText(PackageRecord const& package);
std::string helpText(ClassRecord const& cls);

/// Help on a callable member with all its overloads, or on a property; empty when the class has none of the name.
std::string helpText(ClassRecord const& cls, std::string_view member);

/// Help on a function of the package with all its overloads; empty when there is none of the name.
std::string helpText(PackageRecord const& package, std::string_view function);

/// "getSum(a: int32 scalar, b: int32 scalar) -> int32 scalar": without the object that a method is called on. To be
/// wrapped by `paragraph`.
std::string signatureText(MethodRecord const& method);

/// The lists alone.
std::string methodsText(ClassRecord const& cls);
std::string functionsText(PackageRecord const& package);
std::string propertiesText(ClassRecord const& cls);

} // namespace velmara::console
