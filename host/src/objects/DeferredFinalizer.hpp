#pragma once

#include <vector>

namespace velmara {

class Object;

/// The end of an object may end the objects that it refers to, and so on: a long chain of them would use up the stack.
/// Where ends are nested too deeply, further ones wait here for the outermost to come back.
class DeferredFinalizer {
public:
    DeferredFinalizer();
    DeferredFinalizer(DeferredFinalizer const&) = delete;
    DeferredFinalizer& operator=(DeferredFinalizer const&) = delete;

    /// One end, from its beginning to its return.
    class Scope {
    public:
        explicit Scope(DeferredFinalizer& queue) : queue_(queue) { ++queue_.depth_; }
        Scope(Scope const&) = delete;
        Scope& operator=(Scope const&) = delete;

        ~Scope()
        {
            if (queue_.depth_ == 1 && !queue_.waiting_.empty())
                queue_.finalizeWaiting();
            --queue_.depth_;
        }

    private:
        DeferredFinalizer& queue_;
    };

    /// Has an object without references end later, unless it has got one until then. False when it is to end now. Of a
    /// great many objects those for which there is no memory end as late as their classes.
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
