#include "orbis/factory/detail/handles.hpp"

#include "orbis/factory/basic/registry.hpp"

#include "libkwfoundation_usm/Detail.hpp"

namespace orbis::factory::detail {

bool enterHandle(COSInterface* host, void const* handle)
{
    return basic::registry().handles.emplace(host, handle).second;
}

bool isEntered(COSInterface* host, void const* handle)
{
    return basic::registry().handles.contains({host, handle});
}

void leaveHandle(COSInterface* host, void const* handle)
{
    if (host)
        basic::registry().handles.erase({host, handle});
}

bool canLookUpBindings()
{
    return foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive();
}

} // namespace orbis::factory::detail
