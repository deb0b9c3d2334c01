#include "orbis/factory/ownership/RawClassPointerMarshaler.hpp"

#include "orbis/factory/marshaling/ReferredObjects.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/InterfaceEnumeration.hpp"

namespace orbis::factory {

RawClassPointerMarshaler& RawClassPointerMarshaler::operator=(RawClassPointerMarshaler const&) = default;

RawClassPointerMarshaler& RawClassPointerMarshaler::operator=(RawClassPointerMarshaler&&) = default;

Enumeration<COSInterface*> RawClassPointerMarshaler::toCosi(void const* const object)
{
    return Enumeration<COSInterface*>(new InterfaceEnumeration(basic::BindingRegistry::find(object)));
}

void detail::findBound(void const* address, Enumeration<COSInterface*>& found)
{
    if (address)
        found = RawClassPointerMarshaler::toCosi(address);
}

} // namespace orbis::factory
