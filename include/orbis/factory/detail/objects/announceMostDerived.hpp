#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/classes/NativeClassRecord.hpp"

#include "libhv/hvArray.hpp"

#include <typeinfo>

namespace orbis::factory::detail {

/// A new array with the host object bound to `bound`, which is made when there is none: of the most derived published
/// class that the object is of. `staticClass` is the class that it is known to be of, `dynamicType` the one that it is.
/// 0-by-0 for null. The caller owns the array.
ORBIS_FACTORY_API hvArray* announceMostDerived(void* bound, std::type_info const& dynamicType,
                                               NativeClassRecord const& staticClass);

} // namespace orbis::factory::detail
