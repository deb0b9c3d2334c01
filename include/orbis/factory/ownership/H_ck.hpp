#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"

namespace orbis::factory {

/// Base of the handles by which a native object keeps the host object of another one alive. A handle stores only the
/// native pointer; the host object is looked up.
class ORBIS_FACTORY_API H_ck {
public:
    H_ck& operator=(H_ck const&);
    H_ck& operator=(H_ck&&);

protected:
    /// Adds an external reference to `host` and makes it strong. Null is allowed.
    static void incrementRefCount(COSInterface* host);

    /// Removes an external reference. Null is allowed.
    static void decrementRefCount(COSInterface* host);
};

} // namespace orbis::factory
