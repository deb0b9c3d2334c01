#include "samples/StdSharedBase.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/types/sharedObjectVectors.hpp"

#include <algorithm>

using namespace orbis::factory;

namespace orbisFactoryStdSharedTests {

namespace {

/// Returns a pointer with the reference count that all owners share.
StdSharedBase::Pointer shareOf(StdSharedBase* dancer)
{
    return std::static_pointer_cast<StdSharedBase>(dancer->shared_from_this());
}

} // namespace

StdSharedBase::StdSharedBase(std::string name) : name_(std::move(name)) {}

std::string StdSharedBase::role() const
{
    return name_ + " follows";
}

void StdSharedBase::setPartner(Pointer const& partner)
{
    if (partner.get() == this)
        throw Exception(name_ + " cannot dance alone: a partner is somebody else.");
    if (Pointer const former = partner_.lock())
        former->partner_.reset();
    partner_ = partner;
    if (!partner)
        return;
    if (Pointer const jilted = partner->partner_.lock())
        jilted->partner_.reset();
    partner->partner_ = shareOf(this);
}

int StdSharedBase::holders() const
{
    return static_cast<int>(weak_from_this().use_count());
}

StdSharedBase::Pointer StdSharedBase::invite(std::string const& name, bool leads)
{
    if (leads)
        return std::make_shared<StdSharedDerived>(name);
    return std::make_shared<StdSharedBase>(name);
}

std::vector<StdSharedBase::Pointer> StdSharedBase::inOrder(std::vector<StdSharedBase*> const& dancers)
{
    std::vector<Pointer> ordered;
    for (StdSharedBase* const dancer : dancers)
        if (dancer)
            ordered.push_back(shareOf(dancer));
    std::ranges::stable_sort(ordered, {}, [](Pointer const& dancer) { return dancer->name(); });
    return ordered;
}

std::string StdSharedDerived::role() const
{
    return name() + " leads";
}

std::shared_ptr<StdSharedDerived> StdSharedDerived::rival() const
{
    return std::dynamic_pointer_cast<StdSharedDerived>(partner());
}

CosStdSharedBase::CosStdSharedBase()
    : StdShareableHandleClassInfo(HostClass<StdSharedBase>::name, "A dancer, who may have a partner")
{
}

void CosStdSharedBase::initializeClass(orbis::COSClass* cls)
{
    publish(cls, describe<StdSharedBase>()
                     .constructor<std::string>("name")
                     .method("role", &StdSharedBase::role)
                     .method("self", &StdSharedBase::self)
                     .staticMethod("invite", &StdSharedBase::invite, "name, leads")
                     .staticMethod("inOrder", &StdSharedBase::inOrder, "dancers")
                     .property("name", &StdSharedBase::name)
                     .property("partner", &StdSharedBase::partner, &StdSharedBase::setPartner)
                     .property("holders", &StdSharedBase::holders));
}

CosStdSharedDerived::CosStdSharedDerived()
    : StdShareableHandleClassInfo(HostClass<StdSharedDerived>::name, "A dancer who leads")
{
}

void CosStdSharedDerived::initializeClass(orbis::COSClass* cls)
{
    publish(cls, describe<StdSharedDerived>().inherits<StdSharedBase>().constructor<std::string>("name").property(
                     "rival", &StdSharedDerived::rival));
}

} // namespace orbisFactoryStdSharedTests
