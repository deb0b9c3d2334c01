#pragma once

#include "orbis/factory/descriptors/PropertyImpl.hpp"
#include "orbis/factory/detail/members/PropertyRecord.hpp"

#include <memory>

namespace orbis::factory {

/// Creates the descriptor of a described property.
ORBIS_FACTORY_API std::unique_ptr<impl::PropertyImpl> makeProperty(PropertyRecord const& record);

} // namespace orbis::factory
