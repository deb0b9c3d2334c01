#pragma once

#include "orbis/factory/detail/objects/NamedClass.hpp"

#include "libhv/hvArray.hpp"

#include <memory>

/// Objects of named classes that native code and the host share.
namespace orbis::factory::detail {

/// Like `announceNamed`, for an object in which the host object gets a share.
ORBIS_FACTORY_API hvArray_tag* announceShared(NamedClass const& named, void const* object, std::shared_ptr<void> share);

/// Returns a share in the native object of the array's first element, which from then on is destroyed with its last
/// share; empty when there is no such object. Throws an `Exception` when its host object does not own it.
ORBIS_FACTORY_API std::shared_ptr<void> shareNamed(NamedClass const& named, hvArray_tag const* in);

} // namespace orbis::factory::detail
