#pragma once

#include "errors/MessageCatalog.hpp"
#include "machine/HvmStorage.hpp"
#include "memory/Retirable.hpp"
#include "objects/EndQueue.hpp"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orbis::additions {
class ObjectObserver;
}

namespace velmara {

class ModuleList;
class PackageTree;
class TypeRepository;

/// What stands behind an Hvm: everything that belongs to one virtual machine.
class HvmState {
public:
    HvmState();
    HvmState(HvmState const&) = delete;
    HvmState& operator=(HvmState const&) = delete;

    /// Ends the objects, terminates the modules, removes packages and classes, then gives up storage and types,
    /// and unloads the modules' libraries last.
    ~HvmState();

    /// The virtual machine that is current on this thread, or null.
    static HvmState* current() { return current_; }

    /// The current one; throws "VELMARA:hvm:noVirtualMachine" when there is none.
    static HvmState& required();

    /// Makes `state` (null allowed) current on this thread and gives back the one before.
    static HvmState* makeCurrent(HvmState* state)
    {
        HvmState* const previous = current_;
        current_ = state;
        return previous;
    }

    MessageCatalog& messages() { return messages_; }
    HvmStorage& storage() { return storage_; }

    /// False once the virtual machine has begun to give up its storage.
    bool isStorageActive() const { return isStorageActive_; }

    PackageTree& packages() { return *packages_; }
    TypeRepository& types() { return *types_; }
    ModuleList& modules() { return *modules_; }
    EndQueue& endQueue() { return endQueue_; }

    using LeakReport = std::function<void(std::string const&)>;
    void setLeakReport(LeakReport report) { leakReport_ = std::move(report); }
    bool reportsLeaks() const { return static_cast<bool>(leakReport_); }

    using TerminationReport = std::function<void(std::string const&, char const*)>;
    void setTerminationReport(TerminationReport report) { terminationReport_ = std::move(report); }

    /// What the report throws is lost.
    void reportLeak(char const* sentence) const noexcept;

    /// True once the virtual machine has begun to end: no more objects are made.
    bool isEnding() const { return isEnding_; }

    using ObjectObserver = orbis::additions::ObjectObserver;
    void setObserver(ObjectObserver* observer) { observer_ = observer; }

    /// Null also once the virtual machine has begun to give up its storage.
    ObjectObserver* observer() const { return observer_; }

    /// Has the observer called between the outermost call into the virtual machine and the next one.
    void requestCallBoundary() { isBoundaryRequested_ = true; }

    /// Destroys what was unpublished (null allowed), as soon as no native code that may still use it is running.
    void retire(std::unique_ptr<Retirable> unpublished) noexcept;

    /// A stay in the virtual machine: makes it current, and keeps what is unpublished meanwhile until the
    /// outermost stay is over.
    class Entry {
    public:
        explicit Entry(HvmState& state) : state_(state), previous_(makeCurrent(&state)) { ++state.entries_; }
        Entry(Entry const&) = delete;
        Entry& operator=(Entry const&) = delete;

        ~Entry()
        {
            if (--state_.entries_ == 0 && !state_.retired_.empty())
                state_.retired_.destroyAll();
            makeCurrent(previous_);
        }

    private:
        HvmState& state_;
        HvmState* previous_;
    };

    /// The begin and the end of one call into the virtual machine. To be made before its `Entry`.
    class CallBoundary {
    public:
        explicit CallBoundary(HvmState& state) : state_(state) { pass(); }
        CallBoundary(CallBoundary const&) = delete;
        CallBoundary& operator=(CallBoundary const&) = delete;
        ~CallBoundary() { pass(); }

    private:
        void pass() noexcept
        {
            if (state_.isBoundaryRequested_) [[unlikely]]
                state_.passCallBoundary();
        }

        HvmState& state_;
    };

private:
    void passCallBoundary() noexcept;

#if defined(__linux__)
    [[gnu::tls_model("initial-exec")]]
#endif
    static constinit thread_local HvmState* current_;

    std::unique_ptr<ModuleList> modules_; // first, so that the modules' code goes last
    LeakReport leakReport_;
    TerminationReport terminationReport_;
    HvmStorage storage_;
    MessageCatalog messages_;
    std::unique_ptr<TypeRepository> types_;
    std::unique_ptr<PackageTree> packages_;
    RetiredList retired_;
    EndQueue endQueue_;
    ObjectObserver* observer_ = nullptr;
    int entries_ = 0;
    bool isBoundaryRequested_ = false;
    bool isStorageActive_ = true;
    bool isEnding_ = false;
};

} // namespace velmara
