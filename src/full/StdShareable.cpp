#include "orbis/factory/ownership/StdShareable.hpp"

#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "full/KeepAliveSet.hpp"
#include "full/orphanedObjects.hpp"

#include <unordered_set>

namespace orbis::factory::full {

namespace {
using Kept = KeepAliveSet<std::unordered_set<std::shared_ptr<StdShareable>>>;
} // namespace

StdShareable::StdShareable() = default;

StdShareable::StdShareable(StdShareable const&) = default;

StdShareable& StdShareable::operator=(StdShareable const&) = default;

// Here rather than in `~Wrappable`, so that the host is notified before the shared-from-this base is destroyed.
StdShareable::~StdShareable()
{
    basic::BindingRegistry::retract(this);
}

SharingType StdShareable::getSharingType() const
{
    return SharingType::Shared;
}

void acquireReference(std::shared_ptr<StdShareable> const& object)
{
    Kept::keep(object);
}

void acquireReference(StdShareable* object)
{
    if (object)
        Kept::keep(object->shared_from_this());
}

void releaseReference(std::shared_ptr<StdShareable> const& object)
{
    Kept::drop(object);
}

void releaseReference(StdShareable* object)
{
    if (object)
        Kept::drop(object->shared_from_this());
}

Wrappable const* findOrphanedStdShareable()
{
    return Kept::findOrphaned();
}

bool canAcquireReference(StdShareable*)
{
    return true;
}

} // namespace orbis::factory::full

void orbis::factory::detail::releaseHostKeptStdShareable(COSInterface const* object, void* data)
{
    full::Kept::dropForHost(object, data);
}
