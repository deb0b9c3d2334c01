#include "orbis/factory/detail/handles.hpp"

#include "orbis/factory/basic/registry.hpp"

#include "libkwfoundation_usm/Detail.hpp"

namespace orbis::factory::detail {

void enterHandle(COSInterface* host, void const* handle)
{
    basic::FooRegistry& table = basic::registry();
    COSInterface*& held = table.heldByHandles[handle];
    table.handles.emplace(host, handle);
    held = host;
}

COSInterface* heldBy(void const* handle)
{
    if (!foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive())
        return nullptr;
    auto const& table = basic::registry().heldByHandles;
    auto const found = table.find(handle);
    return found == table.end() ? nullptr : found->second;
}

void leaveHandle(void const* handle)
{
    if (COSInterface* const host = heldBy(handle)) {
        basic::registry().handles.erase({host, handle});
        basic::registry().heldByHandles.erase(handle);
    }
}

} // namespace orbis::factory::detail
