#pragma once

#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory::basic {

/// One binding. It holds no reference on the host object: the table keeps nothing alive.
class RegistryEntry {
public:
    /// Stores the raw pointer; the reference of `boundTo` is released as usual.
    RegistryEntry(void* nativeObject, COSInterfacePtr boundTo) : object(nativeObject), host(boundTo) {}

    /// The same, for a host object that the caller holds by other means.
    RegistryEntry(void* nativeObject, COSInterface* boundTo) : object(nativeObject), host(boundTo) {}

    bool retracted = false; ///< set when the host object is made invalid, so that it happens only once
    bool reserved = false;  ///< unused; part of the fixed layout
    void* object;           ///< the native object's address
    COSInterface* host;     ///< the host object bound to it
};

} // namespace orbis::factory::basic
