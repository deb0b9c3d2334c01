#include "orbis/factory/ownership/InterfaceListEnumeration.hpp"

#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/InterfaceEnumeration.hpp"

namespace orbis::factory {

Enumeration<COSInterface*> InterfaceListEnumeration::ofBound(std::span<void const* const> objects)
{
    return Enumeration<COSInterface*>(new InterfaceListEnumeration(objects));
}

void* InterfaceListEnumeration::operator new(std::size_t size)
{
    return InterfaceEnumeration::operator new(size);
}

void InterfaceListEnumeration::operator delete(void* storage)
{
    InterfaceEnumeration::operator delete(storage);
}

InterfaceListEnumeration::InterfaceListEnumeration(std::span<void const* const> objects)
{
    for (void const* const object : objects)
        if (COSInterface* const host = basic::BindingRegistry::find(object))
            elements_.push_back(host);
}

InterfaceListEnumeration::~InterfaceListEnumeration() = default;

bool InterfaceListEnumeration::hasMoreElements() const
{
    return position_ < elements_.size();
}

COSInterface* InterfaceListEnumeration::nextElement()
{
    if (!hasMoreElements())
        throw ENoElements();
    return elements_[position_++];
}

} // namespace orbis::factory
