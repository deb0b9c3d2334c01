#include "system/EndQueue.hpp"

#include "system/Object.hpp"

namespace velmara {

bool EndQueue::enqueue(Object& object) noexcept
{
    try {
        waiting_.push_back(&object);
    } catch (...) {
        return false;
    }
    object.addWeak();
    return true;
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
