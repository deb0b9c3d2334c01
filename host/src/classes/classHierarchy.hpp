#pragma once

#include "names/InternedName.hpp"

#include <span>

namespace velmara {

class Object;

/// True when `cls` is `ancestor` or, in the current virtual machine, one of its subclasses. No class is
/// described for it.
bool isSubclass(Name cls, Name ancestor);

/// The most specific class that all the objects are of; null objects are passed over. Null when there is no
/// object or no class in common.
Name commonClass(std::span<Object* const> objects);

} // namespace velmara
