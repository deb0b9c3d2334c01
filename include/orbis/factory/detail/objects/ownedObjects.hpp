#pragma once

#include "orbis/factory/detail/objects/NamedClass.hpp"

#include "libhv/hvArray.hpp"

namespace orbis::factory::detail {

/// Returns a new row of cells, owned by the caller, with an array for each object of the list (null for none): all of
/// them can be shared or, with `alone`, taken, and then none is there twice. Otherwise throws an error that names the
/// first element that cannot, and changes nothing.
ORBIS_FACTORY_API hvArray_tag* ownedObjects(NamedClass const& named, hvArray_tag const* list, bool alone);

} // namespace orbis::factory::detail
