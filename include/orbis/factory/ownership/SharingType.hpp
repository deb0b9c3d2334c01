#pragma once

namespace orbis::factory::full {

/// Whose the reference is that the keep-alive set holds on a shared object (see `acquireReference`).
enum class SharingType : int {
    HostKept = 0,      ///< the host object's: it is given up when the host object ends
    Shared = 1,        ///< whoever's acquired it, who also releases it
    HostKeptAlone = 2, ///< as `HostKept`, for objects without a native owner
};

} // namespace orbis::factory::full
