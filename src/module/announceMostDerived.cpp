#include "orbis/factory/detail/objects/announceMostDerived.hpp"

#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "module/PublishedClasses.hpp"

#include "orbis/objectArrays.hpp"

namespace orbis::factory::detail {

hvArray* announceMostDerived(void* bound, std::type_info const& dynamicType, NativeClassRecord const& staticClass)
{
    if (COSInterface* const host = basic::BindingRegistry::find(bound))
        return omCreateORBISScalar(host);
    if (!bound || dynamicType == *staticClass.type)
        return basic::BindingRegistry::announce(bound, COSNameID(staticClass.hostName));
    char const* const name = PublishedClasses::ofCurrentHvm().mostDerived(bound, dynamicType, staticClass);
    return basic::BindingRegistry::announce(bound, COSNameID(name));
}

} // namespace orbis::factory::detail
