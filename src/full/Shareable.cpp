#include "orbis/factory/ownership/Shareable.hpp"

#include "orbis/factory/detail/bindings/releaseHostKept.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "full/KeepAliveSet.hpp"
#include "full/orphanedObjects.hpp"

#include <boost/unordered_set.hpp>

namespace orbis::factory::full {

namespace {
using Kept = KeepAliveSet<boost::unordered_set<boost::shared_ptr<Shareable>>>;
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
    Kept::keep(object);
}

void acquireReference(Shareable* object)
{
    if (object)
        Kept::keep(object->shared_from_this());
}

void releaseReference(boost::shared_ptr<Shareable> const& object)
{
    Kept::drop(object);
}

void releaseReference(Shareable* object)
{
    if (object)
        Kept::drop(object->shared_from_this());
}

Wrappable const* findOrphanedShareable()
{
    return Kept::findOrphaned();
}

bool canAcquireReference(Shareable*)
{
    return true;
}

} // namespace orbis::factory::full

void orbis::factory::detail::releaseHostKeptShareable(COSInterface const* object, void* data)
{
    full::Kept::dropForHost(object, data);
}
