#pragma once

#include "orbis/factory/impl/PropertyImpl.hpp"

#include <memory>

namespace orbis::factory {

/// A property descriptor with the getter and setter that it was described with.
class OwnedProperty final : public impl::PropertyImpl {
public:
    /// One of the two may be empty.
    OwnedProperty(char const* name, std::unique_ptr<impl::Getter> getter, std::unique_ptr<impl::Setter> setter,
                  PropertyAttributes attributes);

private:
    std::unique_ptr<impl::Getter> ownedGetter_;
    std::unique_ptr<impl::Setter> ownedSetter_;
};

} // namespace orbis::factory
