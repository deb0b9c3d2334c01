#pragma once

#include "orbis/factory/descriptors/Invoker.hpp"

namespace orbis::factory {

/// The routine of a constructor whose target is a `detail::Copying const*`: copies the native object of the input.
void copyConstruct(impl::Invoker const* invoker, COSClient const*, int& outputCount, COSValue* outputs, int,
                   COSValue const* inputs);

} // namespace orbis::factory
