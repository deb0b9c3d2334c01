#pragma once

namespace orbis::factory::full {

/// The owner of the reference that the keep-alive set holds on a shared object (see `acquireReference`).
enum class SharingType : int {
    HostKept = 0,      ///< the host object: released when that is destroyed
    Shared = 1,        ///< whoever acquired it, who also releases it
    HostKeptAlone = 2, ///< as `HostKept`, for objects without a native owner
};

} // namespace orbis::factory::full
