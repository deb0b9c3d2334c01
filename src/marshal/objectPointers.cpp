#include "orbis/factory/StaticCastPolicy.hpp"
#include "orbis/factory/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/VelmaraManagedWithInheritancePolicy.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/objectArrays.hpp"

namespace orbis::factory {

namespace detail {

void* nativeObject(hvArray_tag const* array, char const* className)
{
    if (!array || array->get_number_of_elements() == 0)
        return nullptr;
    COSInterfacePtr const object = omGetArrayElement(array, 0);
    return nativeObject(static_cast<COSInterface const*>(object), className);
}

void* nativeObject(COSInterface const* object, char const* className)
{
    return object ? object->getNativeObject(COSNameID(className)) : nullptr;
}

} // namespace detail

using NoInheritance = Marshaler<VelmaraManagedNoInheritancePolicy>;
using WithInheritance = Marshaler<VelmaraManagedWithInheritancePolicy>;
using Static = Marshaler<StaticCastPolicy>;

NoInheritance& NoInheritance::operator=(NoInheritance const&)
{
    return *this;
}

NoInheritance& NoInheritance::operator=(NoInheritance&&)
{
    return *this;
}

WithInheritance& WithInheritance::operator=(WithInheritance const&)
{
    return *this;
}

WithInheritance& WithInheritance::operator=(WithInheritance&&)
{
    return *this;
}

Static& Static::operator=(Static const&)
{
    return *this;
}

Static& Static::operator=(Static&&)
{
    return *this;
}

} // namespace orbis::factory
