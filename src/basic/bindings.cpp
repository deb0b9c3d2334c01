#include "orbis/factory/detail/bindings.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include "additions/NativeOwner.hpp"
#include "orbis/objectArrays.hpp"

namespace orbis::factory {

void detail::discardUnbound(void* object, char const* className) noexcept
{
    try {
        auto const* const table = basic::HvmScoped<basic::FooRegistry>::find();
        if (!object || (table && table->count(object) != 0))
            return;
        if (additions::NativeOwner* const owner = additions::nativeOwnerOf(COSNameID(className)))
            owner->discardNative(object);
    } catch (...) {
        // The class cannot be described: what it would do with the object is not known.
    }
}

void detail::releaseResult(void const* object, hvArray_tag const* row) noexcept
{
    auto* const table = basic::HvmScoped<basic::FooRegistry>::find(); // none is made: it may be out of memory
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
