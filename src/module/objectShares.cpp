#include "module/objectShares.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"

#include "basic/HostDependents.hpp"

#include <utility>

namespace orbis::factory {

namespace {

/// What objects kept whose destruction is under way on this thread: chains of them are released one after the other,
/// not each inside the one before.
thread_local basic::KeptObjects* released = nullptr;

} // namespace

void Destroyer::operator()(void* object)
{
    if (destroy)
        destroy(object);
    if (released)
        released->merge(kept); // the rest is held by it already
    else {
        released = &kept;
        while (!kept.empty())
            kept.extract(kept.begin());
        released = nullptr;
    }
    kept.clear();
}

basic::HostShares& objectShares()
{
    return basic::registry().requireDependents().shares;
}

std::shared_ptr<void> shareOwned(detail::NamedClass const& named, COSInterface* host, void* object)
{
    std::shared_ptr<void> shared(object, Destroyer());
    objectShares().give(host, shared);
    destroyerOf(shared)->destroy = named.destroy;
    return shared;
}

void unshare(COSInterface* host) noexcept
{
    basic::HostShares& shares = objectShares();
    basic::HostShares::Share const* const share = shares.find(host);
    auto const* const shared = share ? std::get_if<std::shared_ptr<void>>(share) : nullptr;
    if (!shared || shared->use_count() != 1)
        return;
    destroyerOf(*shared)->destroy = nullptr;
    shares.drop(host);
}

} // namespace orbis::factory
