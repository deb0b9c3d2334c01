#pragma once

#include <vector>

namespace velmara {

class Object;

/// Finalizing an object may release the last reference to others, and so on: a long chain would overflow the stack.
/// Where finalizations are nested too deeply, further objects wait here until the outermost one returns.
class DeferredFinalizer {
public:
    DeferredFinalizer();
    DeferredFinalizer(DeferredFinalizer const&) = delete;
    DeferredFinalizer& operator=(DeferredFinalizer const&) = delete;

    /// One finalization, from its beginning to its return.
    class Scope {
    public:
        explicit Scope(DeferredFinalizer& finalizer) : finalizer_(finalizer) { ++finalizer_.depth_; }
        Scope(Scope const&) = delete;
        Scope& operator=(Scope const&) = delete;

        ~Scope()
        {
            if (finalizer_.depth_ == 1 && !finalizer_.waiting_.empty())
                finalizer_.finalizeWaiting();
            --finalizer_.depth_;
        }

    private:
        DeferredFinalizer& finalizer_;
    };

    /// Has an object without references finalized later, unless it has one again by then. False when it is to be
    /// finalized now. Without memory to wait in, it is finalized with its class.
    bool defer(Object& object) noexcept
    {
        if (depth_ < maxDepth)
            return false;
        enqueue(object);
        return true;
    }

private:
    static constexpr int maxDepth = 100;

    void enqueue(Object& object) noexcept;
    void finalizeWaiting() noexcept;

    int depth_ = 0;
    std::vector<Object*> waiting_; ///< each held weakly
};

} // namespace velmara
