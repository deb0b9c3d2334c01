#pragma once

#include "orbis_host_export.hpp"

namespace orbis::additions {

/// What a class info may derive from beside `COSClassInfo`, so that lists of live objects tell who owns what stands
/// behind them.
class ORBIS_HOST_API NativeOwner {
public:
    virtual ~NativeOwner();

    /// In one word, which lives as long as the class info: "host" for native objects that end with their host objects,
    /// "native" for those that native code ends, "shared" for those that go with their last owner, of both kinds.
    virtual char const* nativeOwner() const = 0;
};

} // namespace orbis::additions
