#pragma once

#include <memory>

namespace velmara {

class HvmStorage;
class MessageCatalog;

/// What stands behind an Hvm: everything that belongs to one virtual machine.
class HvmState {
public:
    HvmState();
    HvmState(HvmState const&) = delete;
    HvmState& operator=(HvmState const&) = delete;
    ~HvmState();

    /// The virtual machine that is current on this thread, or null.
    static HvmState* current() { return current_; }

    /// The current one; throws "VELMARA:hvm:noVirtualMachine" when there is none.
    static HvmState& required();

    /// Makes `state` (null allowed) current on this thread and gives back the one before.
    static HvmState* makeCurrent(HvmState* state);

    MessageCatalog& messages() { return *messages_; }
    HvmStorage& storage() { return *storage_; }

    /// False once the virtual machine has begun to give up its storage.
    bool isStorageActive() const { return isStorageActive_; }

private:
#if defined(__linux__)
    [[gnu::tls_model("initial-exec")]]
#endif
    static constinit thread_local HvmState* current_;

    std::unique_ptr<MessageCatalog> messages_;
    std::unique_ptr<HvmStorage> storage_;
    bool isStorageActive_ = true;
};

} // namespace velmara
