#include "orbis/factory/ownership/Wrappable.hpp"

#include "orbis/factory/ownership/BindingRegistry.hpp"

namespace orbis::factory::full {

Wrappable::Wrappable() = default;

Wrappable::Wrappable(Wrappable const&) = default;

Wrappable& Wrappable::operator=(Wrappable const&) = default;

Wrappable::~Wrappable()
{
    basic::BindingRegistry::retract(this);
}

} // namespace orbis::factory::full
