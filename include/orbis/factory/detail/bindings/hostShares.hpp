#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"

#include <boost/smart_ptr/shared_ptr.hpp>

#include <memory>

/// The shares that host objects of the current virtual machine have in shared native objects.
namespace orbis::factory::detail {

/// Gives the first object of `array`, which has one, the share, in place of the one it has. Throws `std::bad_alloc`,
/// and the host's error where no virtual machine is current.
ORBIS_FACTORY_API void shareWithHost(hvArray_tag const* array, boost::shared_ptr<void> share);
ORBIS_FACTORY_API void shareWithHost(hvArray_tag const* array, std::shared_ptr<void> share);

/// Gives up the share of `host`, which may end the native object. False when it has none, and when no virtual machine
/// is current.
ORBIS_FACTORY_API bool dropShare(COSInterface const* host);

} // namespace orbis::factory::detail
