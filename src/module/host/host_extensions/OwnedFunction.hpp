#pragma once

#include "orbis/COSInterface.hpp"

namespace orbis::host_extensions {

/// Optional second base of a callable, for scripts whose memory is collected: a function that refers to the object that
/// calls it is a cycle.
class ORBIS_HOST_API OwnedFunction {
public:
    virtual ~OwnedFunction();

    /// Tells that only the native object of `host` calls the function, and keeps it as long as itself.
    virtual void setOwner(COSInterface* host) = 0;
};

} // namespace orbis::host_extensions
