#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"

namespace orbis::factory {

/// Base of the handles with which a native object keeps the host object of another native object alive. A handle
/// holds the native pointer only; the host object is looked up.
class ORBIS_FACTORY_API H_ck {
public:
    H_ck& operator=(H_ck const&);
    H_ck& operator=(H_ck&&);

protected:
    /// One external reference more on `host`, held strongly. Null is allowed.
    static void incrementRefCount(COSInterface* host);

    /// One reference less. Null is allowed.
    static void decrementRefCount(COSInterface* host);
};

} // namespace orbis::factory
