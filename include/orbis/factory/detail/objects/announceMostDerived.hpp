#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/classes/NativeClassRecord.hpp"

#include "libhv/hvArray.hpp"

#include <typeinfo>

namespace orbis::factory::detail {

/// Returns a new array, owned by the caller, with the host object bound to `bound`; 0-by-0 for null. If there is no
/// such host object, it is created, of the object's most derived published class. `staticClass` is the class that the
/// object is known to have, `dynamicType` the one that it has.
ORBIS_FACTORY_API hvArray* announceMostDerived(void* bound, std::type_info const& dynamicType,
                                               NativeClassRecord const& staticClass);

} // namespace orbis::factory::detail
