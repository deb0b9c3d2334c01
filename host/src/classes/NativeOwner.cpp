#include "host_extensions/NativeOwner.hpp"

#include "classes/Class.hpp"

namespace orbis::host_extensions {

NativeOwner::~NativeOwner() = default;

void NativeOwner::discardNative(void*) noexcept {}

NativeOwner* nativeOwnerOf(COSNameID const& className)
{
    COSClass* const cls = COSClass::getClass(className);
    return cls ? dynamic_cast<NativeOwner*>(&static_cast<velmara::Class*>(cls)->info()) : nullptr;
}

NativeOwner* nativeOwnerOf(COSInterface const* object)
{
    velmara::ObjectClass* const cls = static_cast<velmara::Object const*>(object)->classOf();
    return cls ? dynamic_cast<NativeOwner*>(&cls->info()) : nullptr;
}

} // namespace orbis::host_extensions
