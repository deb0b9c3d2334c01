#pragma once

#include "orbis_host_export.hpp"

namespace orbis::host_extensions {

/// Optional further base of a class info, which compares the native objects of its class.
class ORBIS_HOST_API NativeEquality {
public:
    virtual ~NativeEquality();

    /// Returns whether the class has a comparison.
    virtual bool comparesNatives() const = 0;

    /// Returns whether two native objects, as host objects of the class record them, are equal. Called only if the
    /// class has a comparison; throws what that throws.
    virtual bool areEqual(void* a, void* b) const = 0;
};

} // namespace orbis::host_extensions
