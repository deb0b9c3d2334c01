#include "orbis/factory/ownership/StdShareable.hpp"

#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "full/KeepAliveSet.hpp"
#include "full/orphanedObjects.hpp"

#include <unordered_set>

namespace orbis::factory::full {

namespace {
using KeptStdShareables = KeepAliveSet<std::unordered_set<std::shared_ptr<StdShareable>>>;
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
    KeptStdShareables::keep(object);
}

void acquireReference(StdShareable* object)
{
    if (object)
        KeptStdShareables::keep(object->shared_from_this());
}

void releaseReference(std::shared_ptr<StdShareable> const& object)
{
    KeptStdShareables::drop(object);
}

void releaseReference(StdShareable* object)
{
    if (object)
        KeptStdShareables::drop(object->shared_from_this());
}

Wrappable const* findOrphanedStdShareable()
{
    return KeptStdShareables::findOrphaned();
}

bool canAcquireReference(StdShareable*)
{
    return true;
}

} // namespace orbis::factory::full

void orbis::factory::detail::releaseHostKeptStdShareable(COSInterface const* object, void* data)
{
    full::KeptStdShareables::dropForHost(object, data);
}
