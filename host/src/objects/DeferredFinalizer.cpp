#include "objects/DeferredFinalizer.hpp"

#include "objects/Object.hpp"

#include <new>

namespace velmara {

DeferredFinalizer::DeferredFinalizer()
{
    waiting_.reserve(256);
}

void DeferredFinalizer::enqueue(Object& object) noexcept
{
    try {
        waiting_.push_back(&object);
        object.addWeak();
    } catch (std::bad_alloc const&) {
        // See `defer`.
    }
}

void DeferredFinalizer::finalizeWaiting() noexcept
{
    while (!waiting_.empty()) {
        Object& object = *waiting_.back();
        waiting_.pop_back();
        object.finalizeIfUnreferenced();
        object.removeWeak();
    }
}

} // namespace velmara
