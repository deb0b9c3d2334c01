#include "orbis/factory/basic/HandleReferences.hpp"

namespace orbis::factory::basic {

void HandleReferences::enter(COSInterface* host, void const* handle)
{
    COSInterface*& held = byHandle_[handle];
    byHost_.emplace(host, handle);
    held = host;
}

COSInterface* HandleReferences::heldBy(void const* handle) const noexcept
{
    auto const found = byHandle_.find(handle);
    return found == byHandle_.end() ? nullptr : found->second;
}

void HandleReferences::leave(void const* handle) noexcept
{
    auto const found = byHandle_.find(handle);
    if (found == byHandle_.end())
        return;
    byHost_.erase({found->second, handle});
    byHandle_.erase(found);
}

void HandleReferences::giveBack(COSInterface* host)
{
    auto const first = byHost_.lower_bound({host, nullptr});
    auto last = first;
    std::size_t count = 0;
    for (; last != byHost_.end() && last->first == host; ++last, ++count)
        byHandle_.erase(last->second);
    byHost_.erase(first, last); // first: the last reference to go may end other objects, and come back here
    for (; count > 0; --count)
        host->removeReference();
}

} // namespace orbis::factory::basic
