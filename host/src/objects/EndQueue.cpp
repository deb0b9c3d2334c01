#include "objects/EndQueue.hpp"

#include "objects/Object.hpp"

#include <new>

namespace velmara {

EndQueue::EndQueue()
{
    waiting_.reserve(256);
}

void EndQueue::enqueue(Object& object) noexcept
{
    try {
        waiting_.push_back(&object);
        object.addWeak();
    } catch (std::bad_alloc const&) {
        // It ends with its class.
    }
}

void EndQueue::endWaiting() noexcept
{
    while (!waiting_.empty()) {
        Object& object = *waiting_.back();
        waiting_.pop_back();
        object.endIfUnreferenced();
        object.removeWeak();
    }
}

} // namespace velmara
