#include "orbis/factory/ownership/Shareable.hpp"

#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "full/KeepAliveSet.hpp"
#include "full/orphanedObjects.hpp"

#include <boost/unordered_set.hpp>

namespace orbis::factory::full {

namespace {
using KeptShareables = KeepAliveSet<boost::unordered_set<boost::shared_ptr<Shareable>>>;
} // namespace

Shareable::Shareable() = default;

Shareable::Shareable(Shareable const&) = default;

Shareable& Shareable::operator=(Shareable const&) = default;

// Here rather than in `~Wrappable`, so that the host is notified before the shared-from-this base is destroyed.
Shareable::~Shareable()
{
    basic::BindingRegistry::retract(this);
}

SharingType Shareable::getSharingType() const
{
    return SharingType::Shared;
}

void acquireReference(boost::shared_ptr<Shareable> const& object)
{
    KeptShareables::keep(object);
}

void acquireReference(Shareable* object)
{
    if (object)
        KeptShareables::keep(object->shared_from_this());
}

void releaseReference(boost::shared_ptr<Shareable> const& object)
{
    KeptShareables::drop(object);
}

void releaseReference(Shareable* object)
{
    if (object)
        KeptShareables::drop(object->shared_from_this());
}

Wrappable const* findOrphanedShareable()
{
    return KeptShareables::findOrphaned();
}

bool canAcquireReference(Shareable*)
{
    return true;
}

} // namespace orbis::factory::full

void orbis::factory::detail::releaseHostKeptShareable(COSInterface const* object, void* data)
{
    full::KeptShareables::dropForHost(object, data);
}
