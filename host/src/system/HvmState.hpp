#pragma once

namespace velmara {

/// What stands behind an Hvm. To be completed by the author of the object system.
class HvmState {
public:
    /// The virtual machine that is current on this thread, or null.
    static HvmState* current();
};

} // namespace velmara
