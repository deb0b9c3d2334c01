#include "samples/Vehicles.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

#include <algorithm>

namespace orbis::factory::samples {

namespace {

std::unique_ptr<A> make(std::string const& kind, std::string const& name)
{
    if (kind == "vehicle")
        return std::make_unique<A>(name);
    if (kind == "boat")
        return std::make_unique<B>(name);
    if (kind == "car")
        return std::make_unique<C>(name);
    if (kind == "amphibian")
        return std::make_unique<D>(name);
    throw Exception("The depot builds no \"" + kind + "\": ask for a vehicle, boat, car or amphibian.");
}

} // namespace

std::string C::tow(A const* other) const
{
    if (!other || other == this)
        throw Exception("A car tows another vehicle.");
    return name() + " tows the " + other->kind() + " " + other->name();
}

Z* Z::depot()
{
    return &basic::HvmScoped<Z>::get();
}

A* Z::build(std::string const& kind, std::string const& name)
{
    return vehicles_.emplace_back(make(kind, name)).get();
}

std::vector<A*> Z::fleet() const
{
    std::vector<A*> fleet;
    fleet.reserve(vehicles_.size());
    for (auto const& vehicle : vehicles_)
        fleet.push_back(vehicle.get());
    return fleet;
}

std::vector<B*> Z::boats() const
{
    std::vector<B*> boats;
    for (auto const& vehicle : vehicles_)
        if (auto* const boat = dynamic_cast<B*>(vehicle.get()))
            boats.push_back(boat);
    return boats;
}

void Z::scrap(A const* vehicle)
{
    auto const found = std::ranges::find(vehicles_, vehicle, &std::unique_ptr<A>::get);
    if (found == vehicles_.end())
        throw Exception("There is nothing to scrap.");
    vehicles_.erase(found);
}

AWrapper::AWrapper() : HandleClassInfo(HostClass<A>::name, "Whatever") {}

void AWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<A>().method("kind", &A::kind).property("name", &A::name));
}

BWrapper::BWrapper() : HandleClassInfo(HostClass<B>::name, "Whatever") {}

void BWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<B>().inherits<A>().method("sail", &B::sail));
}

CWrapper::CWrapper() : HandleClassInfo(HostClass<C>::name, "Whatever") {}

void CWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<C>().inherits<A>().method("drive", &C::drive).method("tow", &C::tow, "other"));
}

DWrapper::DWrapper() : HandleClassInfo(HostClass<D>::name, "Whatever") {}

void DWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<D>().inherits<B, C>());
}

ZWrapper::ZWrapper() : HandleClassInfo(HostClass<Z>::name, "Whatever") {}

void ZWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<Z>()
                     .staticMethod("depot", &Z::depot)
                     .method("build", &Z::build, "kind, name")
                     .method("scrap", &Z::scrap, "vehicle")
                     .property("fleet", &Z::fleet)
                     .property("boats", &Z::boats));
}

} // namespace orbis::factory::samples
