#include "orbis/factory/StaticCastPolicy.hpp"
#include "orbis/factory/VelmaraManagedNoInheritancePolicy.hpp"
#include "orbis/factory/VelmaraManagedWithInheritancePolicy.hpp"

namespace orbis::factory {

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
