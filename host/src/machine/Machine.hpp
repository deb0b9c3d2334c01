#pragma once

#include "errors/MessageCatalog.hpp"
#include "machine/HeldFunction.hpp"
#include "machine/HvmStorage.hpp"
#include "memory/Retirable.hpp"
#include "memory/ThreadCache.hpp"
#include "origins/OriginRing.hpp"
#include "origins/OriginTable.hpp"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace orbis::host_extensions {
class ObjectObserver;
}

namespace velmara {

class DeferredFinalizer;
class PackageTree;
class TypeRepository;

/// A virtual machine as its own parts see it, each of which finds its like here. `HvmState` creates and owns them.
class Machine : public MessageSource {
public:
    Machine(Machine const&) = delete;
    Machine& operator=(Machine const&) = delete;

    /// The virtual machine that is current on this thread, or null.
    static Machine* current() { return static_cast<Machine*>(current_); }

    /// The current one; throws "VELMARA:hvm:noVirtualMachine" when there is none.
    static Machine& required();

    /// Makes `machine` (null allowed) current on this thread and returns the previous one.
    static Machine* makeCurrent(Machine* machine)
    {
        Machine* const previous = current();
        current_ = machine;
        return previous;
    }

    HvmStorage& storage() { return storage_; }
    PackageTree& packages() const { return *parts_.packages; }
    TypeRepository& types() const { return *parts_.types; }
    FunctionList& functions() { return *functions_; }

    OriginTable& origins() { return origins_; }
    OriginRing& recordedArrays() { return recordedArrays_; }

    /// An empty source ends the recording.
    void recordOrigins(OriginSource source);

    /// Withholds the thread's cache if origins are recorded. All ways into the virtual machine lead through here or a
    /// `CallBoundary`.
    void watchThread() const noexcept
    {
        if (origins_.isRecording()) [[unlikely]]
            withholdThreadCache();
    }

    /// The one that is current on this thread, if it records origins; else null. For those who create something and
    /// find no thread's cache, which is restored when it is withheld for nothing.
    static Machine* recording() noexcept;

    DeferredFinalizer& deferredFinalizer() const { return *parts_.deferredFinalizer; }

    /// False once the virtual machine has begun to clear its storage.
    bool isStorageActive() const { return isStorageActive_; }

    /// True once the virtual machine is being destroyed: no more objects are created.
    bool isEnding() const { return isEnding_; }

    using LeakReport = std::function<void(std::string const&)>;
    void setLeakReport(LeakReport report) { leakReport_ = std::move(report); }
    bool reportsLeaks() const { return static_cast<bool>(leakReport_); }

    /// What the report throws is lost.
    void reportLeak(char const* sentence) const noexcept;

    using ObjectObserver = orbis::host_extensions::ObjectObserver;
    void setObserver(ObjectObserver* observer) { observer_ = observer; }

    /// Null also once the virtual machine has begun to clear its storage.
    ObjectObserver* observer() const { return observer_; }

    /// Has the observer called between the outermost call into the virtual machine and the next one.
    void requestCallBoundary() { isBoundaryRequested_ = isBoundarySlow_ = true; }

    /// Destroys what was unpublished (null allowed) as soon as no native code that may still use it is running.
    void retire(std::unique_ptr<Retirable> unpublished) noexcept;

    /// Makes the virtual machine current. What is unpublished meanwhile is kept until the outermost entry is left.
    class Entry {
    public:
        explicit Entry(Machine& machine) : machine_(machine), previous_(makeCurrent(&machine)) { ++machine.entries_; }
        Entry(Entry const&) = delete;
        Entry& operator=(Entry const&) = delete;

        [[gnu::always_inline]] ~Entry()
        {
            if (--machine_.entries_ == 0 && !machine_.retired_.empty())
                machine_.retired_.destroyAll();
            makeCurrent(previous_);
        }

    private:
        Machine& machine_;
        Machine* previous_;
    };

    /// The begin and the end of one call into the virtual machine. Created before the call's `Entry`.
    class CallBoundary {
    public:
        explicit CallBoundary(Machine& machine) : machine_(machine) { pass(); }
        CallBoundary(CallBoundary const&) = delete;
        CallBoundary& operator=(CallBoundary const&) = delete;
        [[gnu::always_inline]] ~CallBoundary() { pass(); }

    private:
        [[gnu::always_inline]] void pass() noexcept
        {
            if (machine_.isBoundarySlow_) [[unlikely]]
                machine_.passCallBoundary();
        }

        Machine& machine_;
    };

protected:
    /// What the floors above this one have of a virtual machine.
    struct Parts {
        PackageTree* packages;
        TypeRepository* types;
        DeferredFinalizer* deferredFinalizer;
    };

    /// The parts may be created later; they are used by no one before.
    explicit Machine(Parts const& parts) : parts_(parts) {}
    ~Machine() = default;

    void beginEnding()
    {
        isEnding_ = true;
        functions_->beginEnding();
    }

    /// From here on the observer is not called either.
    void clearStorage();

    /// Also inside of native code: a callback that ends the process never returns to it.
    void destroyRetired() noexcept { retired_.destroyAll(); }

private:
    void passCallBoundary() noexcept;

    Parts parts_;
    LeakReport leakReport_;
    HvmStorage storage_;
    std::shared_ptr<FunctionList> functions_ = std::make_shared<FunctionList>(*this);
    RetiredList retired_;
    OriginTable origins_;
    OriginRing recordedArrays_;
    ObjectObserver* observer_ = nullptr;
    int entries_ = 0;
    bool isBoundaryRequested_ = false;
    bool isBoundarySlow_ = false; ///< that, or origins are recorded
    bool isStorageActive_ = true;
    bool isEnding_ = false;
};

} // namespace velmara
