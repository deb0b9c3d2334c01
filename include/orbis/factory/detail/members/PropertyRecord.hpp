#pragma once

#include "orbis/factory/descriptors/Callable.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"
#include "orbis/factory/descriptors/PropertyImpl.hpp"

#include <memory>

namespace orbis::factory {

/// The description of one property, from which its descriptor is created; needs no host. All texts are literals.
struct PropertyRecord {
    using Make = std::unique_ptr<impl::PropertyImpl> (*)(PropertyRecord const& record);

    char const* name;
    PropertyAttributes attributes;
    Make make = nullptr;        ///< creates the descriptor, with its own getter and setter
    impl::Callable getter = {}; ///< null for a write-only property
    impl::Callable setter = {}; ///< null for a read-only property
    char const* text = "";
    bool needsObject = false;                    ///< to read, write or release; must be false for a static property
    std::shared_ptr<void const> keptGetter = {}; ///< owns what `getter` points to, unless that is a function or data
    std::shared_ptr<void const> keptSetter = {}; ///< likewise
};

} // namespace orbis::factory
