#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"
#include "orbis/factory/descriptors/PropertyImpl.hpp"

#include <memory>

namespace orbis::factory {

/// One property as it is described: what its descriptor will be made of, without a host. All texts live as long as
/// the program (they are literals).
struct PropertyRecord {
    using Make = std::unique_ptr<impl::PropertyImpl> (*)(PropertyRecord const& record);

    char const* name;
    PropertyAttributes attributes;
    Make make = nullptr;        ///< makes the descriptor, with a getter and a setter of its own
    impl::Callable getter = {}; ///< null for a write-only property
    impl::Callable setter = {}; ///< null for a read-only property
    bool needsObject = false;   ///< to be read, written or released; a static property has none
};

} // namespace orbis::factory
