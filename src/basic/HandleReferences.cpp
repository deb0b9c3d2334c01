#include "basic/HandleReferences.hpp"

namespace orbis::factory::basic {

void HandleReferences::add(HandleReference const& reference)
{
    auto const [place, isNew] = byHandle_.try_emplace(reference.handle);
    try {
        place->second = held_.insert(reference);
    } catch (...) {
        byHandle_.erase(place);
        throw;
    }
}

HandleReference const* HandleReferences::find(void const* handle) const noexcept
{
    auto const found = byHandle_.find(handle);
    return found == byHandle_.end() ? nullptr : &*found->second;
}

void HandleReferences::remove(void const* handle) noexcept
{
    auto const found = byHandle_.find(handle);
    held_.erase(found->second);
    byHandle_.erase(found);
}

void HandleReferences::defer(void const* handle) noexcept
{
    auto const found = byHandle_.find(handle);
    deferred_.insert(held_.extract(found->second));
    byHandle_.erase(found);
}

/// Gives how many there were.
int HandleReferences::erase(References& references, COSInterface const* host, void const* bound,
                            boost::unordered_map<void const*, References::iterator>* byHandle) noexcept
{
    int count = 0;
    for (auto it = references.lower_bound(host); it != references.end() && it->host == host;) {
        if (bound && it->bound != bound) {
            ++it;
            continue;
        }
        if (byHandle)
            byHandle->erase(it->handle);
        it = references.erase(it);
        ++count;
    }
    return count;
}

void HandleReferences::release(COSInterface* host, void const* bound) noexcept
{
    if (empty())
        return;
    // All are forgotten first: the last reference to go may end other objects, and come back here.
    int count = erase(held_, host, bound, &byHandle_) + erase(deferred_, host, bound, nullptr);
    for (; count > 0; --count)
        host->removeReference();
}

void HandleReferences::releaseDeferred() noexcept
{
    while (!deferred_.empty())
        deferred_.extract(deferred_.begin()).value().host->removeReference();
}

} // namespace orbis::factory::basic
