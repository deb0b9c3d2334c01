#include "orbis/factory/ownership/H_ck.hpp"

#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory {

H_ck& H_ck::operator=(H_ck const&) = default;

H_ck& H_ck::operator=(H_ck&&) = default;

void H_ck::incrementRefCount(COSInterface* host)
{
    if (!host)
        return;
    host->addReference();
    COSInterfacePtr(host).setReferenceType(COSReferenceType::Strong);
}

void H_ck::decrementRefCount(COSInterface* host)
{
    if (host)
        host->removeReference();
}

} // namespace orbis::factory
