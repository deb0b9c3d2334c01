#pragma once

#include "orbis/factory/PropertyAttributes.hpp"
#include "orbis/factory/impl/Callable.hpp"
#include "orbis/factory/impl/Getter.hpp"
#include "orbis/factory/impl/Setter.hpp"

#include <memory>

namespace orbis::factory {

/// One property as it is described: what its descriptor will be made of, without a host. All texts live as long as
/// the program (they are literals).
struct PropertyRecord {
    using MakeGetter = std::unique_ptr<impl::Getter> (*)(impl::Callable const& function);
    using MakeSetter = std::unique_ptr<impl::Setter> (*)(impl::Callable const& function);

    char const* name;
    PropertyAttributes attributes;
    MakeGetter makeGetter = nullptr; ///< null for a write-only property
    impl::Callable getter = {};
    MakeSetter makeSetter = nullptr; ///< null for a read-only property
    impl::Callable setter = {};
    bool needsObject = false; ///< to be read, written or released; a static property has none
};

} // namespace orbis::factory
