#include "orbis/factory/ownership/BindingRegistry.hpp"

namespace orbis::factory::full {

using Basic = basic::BindingRegistry;

BindingRegistry& BindingRegistry::operator=(BindingRegistry const&) = default;

BindingRegistry& BindingRegistry::operator=(BindingRegistry&&) = default;

hvArray* BindingRegistry::announce(Wrappable* object, COSNameID const& className)
{
    return Basic::announce(static_cast<void*>(object), className);
}

void BindingRegistry::announceForConstructor(Wrappable* object, COSNameID const& className, hvArray* constructed)
{
    Basic::announceForConstructor(object, className, constructed, true);
}

COSInterface* BindingRegistry::find(Wrappable* object)
{
    return Basic::find(object);
}

bool BindingRegistry::release(Wrappable* object)
{
    return Basic::release(object);
}

bool BindingRegistry::retract(Wrappable* object)
{
    return Basic::retract(object);
}

} // namespace orbis::factory::full
