#pragma once

#include "memory/Retirable.hpp"

#include <atomic>
#include <memory>
#include <mutex>

namespace velmara {

class FunctionList;
class Machine;

/// A function that arrays and native code hold. Its callable belongs to a virtual machine and is destroyed with that;
/// the rest stays as long as it is held.
class HeldFunction {
public:
    HeldFunction(HeldFunction const&) = delete;
    HeldFunction& operator=(HeldFunction const&) = delete;

    /// On any thread.
    void addReference() noexcept { references_.fetch_add(1, std::memory_order_relaxed); }

    /// The last one destroys the callable, at once: on the thread of the virtual machine.
    void release() noexcept;

    /// The same on any thread: at once if the virtual machine is current, else later.
    void releaseAnywhere() noexcept;

    /// Null once the virtual machine has ended.
    Retirable* callable() const { return callable_.get(); }

    /// The callable of a function that can be called here. Throws "VELMARA:function:..." otherwise.
    Retirable& requireCallable() const;

private:
    friend class FunctionList;

    HeldFunction(std::shared_ptr<FunctionList> list, std::unique_ptr<Retirable> callable)
        : list_(std::move(list)),
          callable_(std::move(callable))
    {
    }
    ~HeldFunction() = default;

    std::shared_ptr<FunctionList> const list_;
    std::unique_ptr<Retirable> callable_;
    std::atomic<std::size_t> references_ = 1;
    HeldFunction* previous_ = nullptr;
    HeldFunction* next_ = nullptr;
    bool isListed_ = false;    ///< until its callable is destroyed
    bool isAbandoned_ = false; ///< no one holds it, and the list destroys it
};

/// The functions of one virtual machine. They share it, as they may outlive that.
class FunctionList : public std::enable_shared_from_this<FunctionList> {
public:
    explicit FunctionList(Machine& machine) : machine_(machine) {}
    FunctionList(FunctionList const&) = delete;
    FunctionList& operator=(FunctionList const&) = delete;

    /// A new function with one reference.
    HeldFunction& add(std::unique_ptr<Retirable> callable);

    /// Destroys the functions whose last holder had to leave that to a later time.
    void destroyAbandoned() noexcept;

    /// Refuses calls from now on.
    void beginEnding() noexcept { isEnding_ = true; }

    /// Destroys all callables. Needs no memory.
    void end() noexcept;

private:
    friend class HeldFunction;

    void release(HeldFunction& function, bool isOnThread) noexcept;
    void unlist(HeldFunction& function) noexcept;

    Machine& machine_; ///< until the end
    std::atomic<bool> isEnding_ = false;
    std::atomic<bool> hasAbandoned_ = false;
    std::mutex mutex_; ///< of what follows
    HeldFunction* first_ = nullptr;
};

} // namespace velmara
