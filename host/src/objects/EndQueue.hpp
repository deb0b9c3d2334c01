#pragma once

#include <vector>

namespace velmara {

class Object;

/// The end of an object may end the objects that it refers to, and so on: a long chain of them would use up the stack.
/// Where ends are nested too deeply, further ones wait here for the outermost to come back.
class EndQueue {
public:
    EndQueue();
    EndQueue(EndQueue const&) = delete;
    EndQueue& operator=(EndQueue const&) = delete;

    /// One end, from its beginning to its return.
    class Nesting {
    public:
        explicit Nesting(EndQueue& queue) : queue_(queue) { ++queue_.depth_; }
        Nesting(Nesting const&) = delete;
        Nesting& operator=(Nesting const&) = delete;

        ~Nesting()
        {
            if (queue_.depth_ == 1 && !queue_.waiting_.empty())
                queue_.endWaiting();
            --queue_.depth_;
        }

    private:
        EndQueue& queue_;
    };

    /// Has an object without references end later, unless it has got one until then. False when it is to end now. Of a
    /// great many objects those for which there is no memory end as late as their classes.
    bool postpone(Object& object) noexcept
    {
        if (depth_ < deepest)
            return false;
        enqueue(object);
        return true;
    }

private:
    static constexpr int deepest = 100;

    void enqueue(Object& object) noexcept;
    void endWaiting() noexcept;

    int depth_ = 0;
    std::vector<Object*> waiting_; ///< each held weakly
};

} // namespace velmara
