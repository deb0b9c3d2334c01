#include "orbis/factory/full/Wrappable.hpp"

#include "orbis/factory/basic/BindingRegistry.hpp"

namespace orbis::factory::full {

Wrappable::Wrappable() = default;

Wrappable::Wrappable(Wrappable const&) = default;

Wrappable& Wrappable::operator=(Wrappable const&) = default;

Wrappable::~Wrappable()
{
    basic::BindingRegistry::retract(this);
}

} // namespace orbis::factory::full
