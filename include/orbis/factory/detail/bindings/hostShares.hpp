#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"

#include <boost/smart_ptr/shared_ptr.hpp>

#include <memory>

/// The shares that host objects of the current virtual machine hold in shared native objects.
namespace orbis::factory::detail {

/// Gives `share` to the first object of `array`, which must have one, in place of its current share. Throws
/// `std::bad_alloc`, and the host's error if no virtual machine is current.
ORBIS_FACTORY_API void shareWithHost(hvArray_tag const* array, boost::shared_ptr<void> share);
ORBIS_FACTORY_API void shareWithHost(hvArray_tag const* array, std::shared_ptr<void> share);

/// Releases the share of `host`, which may destroy the native object. Returns false when there is none or no virtual
/// machine is current.
ORBIS_FACTORY_API bool dropShare(COSInterface const* host);

} // namespace orbis::factory::detail
