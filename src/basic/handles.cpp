#include "orbis/factory/detail/bindings/handles.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "basic/HostDependents.hpp"

#include "host_extensions/ObjectObserver.hpp"
#include "libkwfoundation_usm/Detail.hpp"

namespace orbis::factory::detail {

namespace {

/// Null when nothing is bound, when no virtual machine is current, and when it has begun to destroy its storage.
basic::HandleReferences* activeReferences() noexcept
{
    if (!foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive())
        return nullptr;
    basic::FooRegistry* const table = basic::HvmScoped<basic::FooRegistry>::find();
    return table && table->dependents ? &table->dependents->handles : nullptr;
}

basic::HandleReference const* referenceOf(void const* handle) noexcept
{
    basic::HandleReferences const* const references = activeReferences();
    return references ? references->find(handle) : nullptr;
}

} // namespace

void enterHandle(COSInterface* host, void const* bound, void const* target, void const* handle)
{
    basic::registry().requireDependents().handles.add({host, bound, target, handle});
}

COSInterface* heldBy(void const* handle) noexcept
{
    basic::HandleReference const* const reference = referenceOf(handle);
    return reference ? reference->host : nullptr;
}

bool isHeldBy(void const* handle, void const* target) noexcept
{
    basic::HandleReference const* const reference = referenceOf(handle);
    return reference && reference->target == target;
}

void releaseForHandle(void const* handle) noexcept
{
    if (COSInterface* const host = heldBy(handle)) {
        activeReferences()->remove(handle);
        host->removeReference();
    }
}

void releaseForHandleLater(void const* handle) noexcept
{
    if (!heldBy(handle))
        return;
    activeReferences()->defer(handle);
    host_extensions::requestCallBoundary();
}

} // namespace orbis::factory::detail
