#include "orbis/factory/detail/bindings/bindings.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "host_extensions/NativeOwner.hpp"
#include "orbis/objectArrays.hpp"

namespace orbis::factory {

void detail::discardUnbound(void* object, char const* className) noexcept
{
    try {
        auto const* const table = basic::HvmScoped<basic::FooRegistry>::find();
        if (!object || (table && table->count(object) != 0))
            return;
        if (host_extensions::NativeOwner* const owner = host_extensions::nativeOwnerOf(COSNameID(className)))
            owner->discardNative(object);
    } catch (...) {
        // The class cannot be described, so whether it would delete the object is unknown.
    }
}

void detail::releaseResult(void const* object, hvArray_tag const* row) noexcept
{
    auto* const table = basic::HvmScoped<basic::FooRegistry>::find(); // does not create one: memory may be exhausted
    if (!table)
        return;
    auto const found = table->find(object);
    if (found == table->end())
        return;
    COSInterface* const host = found->second->host;
    int elements = 0;
    for (std::size_t i = 0; i < row->get_number_of_elements(); ++i)
        elements += static_cast<COSInterface*>(omGetArrayElement(row, i)) == host;
    if (host->getExternalReferenceCount() == 0 && host->getInternalReferenceCount() == elements)
        table->unbind(object, host);
}

} // namespace orbis::factory
