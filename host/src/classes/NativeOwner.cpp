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

} // namespace orbis::host_extensions
