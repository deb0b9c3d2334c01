#pragma once

#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory::basic {

/// One binding of the registry. It holds no reference on the host object: the table keeps no object alive.
class RegistryEntry {
public:
    /// The reference that `boundTo` carries goes with it.
    RegistryEntry(void* nativeObject, COSInterfacePtr boundTo) : object(nativeObject), host(boundTo) {}

    /// The same for an object that someone else holds meanwhile.
    RegistryEntry(void* nativeObject, COSInterface* boundTo) : object(nativeObject), host(boundTo) {}

    bool retracted = false; ///< set when the host object is told that its native object is gone: told only once
    bool reserved = false;  ///< used by nothing; it keeps the entry's shape
    void* object;           ///< the native object's address
    COSInterface* host;     ///< the host object bound to it
};

} // namespace orbis::factory::basic
