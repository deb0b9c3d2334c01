#include "samples/Prop.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "samples/attributeNames.hpp"

#include <memory>

namespace orbis::factory::samples {

namespace {

/// Shared by all thermostats of a virtual machine.
struct House {
    double outside = 10;
};

double outside()
{
    return basic::HvmScoped<House>::get().outside;
}

void setOutside(double celsius)
{
    basic::HvmScoped<House>::get().outside = celsius;
}

double fahrenheit(Prop const* thermostat)
{
    return thermostat->target() * 9 / 5 + 32;
}

void setFahrenheit(Prop* thermostat, double degrees)
{
    thermostat->setTarget((degrees - 32) * 5 / 9);
}

using P = PropertyAttributes;

ClassDescriber<Prop> describeThermostat()
{
    return describe<Prop>()
        .property("target", &Prop::target, &Prop::setTarget, P::AbortSet() + P::DefaultAllowed())
        .property("actual", &Prop::actual, P::Transient())
        .property("room", &Prop::room, &Prop::setRoom, P::InitAllowed() + P::CopyAllowed())
        .property("isOn", &Prop::isOn, P::ResetAllowed() + P::InspectAllowed())
        .property("serial", &Prop::serial, P::NoAccessSetter() + P::Sealed())
        .property("fahrenheit", &fahrenheit, &setFahrenheit, P::Dependent())
        .property(
            "isOff", [](Prop* thermostat) { return !thermostat->isOn; },
            [](Prop* thermostat, bool isOff) { thermostat->isOn = !isOff; },
            P::ListenerGetAllowed() + P::ListenerSetAllowed())
        .property("reading", releasedBy<&Prop::takeReadingBack>(&Prop::lendReading), P::ForceMembership())
        .property("lent", &Prop::lent, P::Hidden())
        .writeOnlyProperty("pin", &Prop::setPin, P::NoAccessGetter())
        .property("maker", &Prop::maker, P::PrivateSetter() + P::Grandfathered())
        .property("fuse", &Prop::fuse, P::ProtectedSetter() + P::Destructible())
        .property("diary", &Prop::diary, P::PrivateGetter())
        .property("wiring", &Prop::wiring, P::ProtectedGetter() + P::CanContainInterfaces())
        .property("humidity", &Prop::actual, P::Abstract())
        .staticProperty("outside", &outside, &setOutside)
        .staticProperty("absoluteZero", &Prop::absoluteZero);
}

/// Inspects the description, which needs no host.
std::string attributesOfProperty(std::string const& property)
{
    ClassDescriber<Prop> const description = describeThermostat();
    for (PropertyRecord const& record : description.properties())
        if (record.name == property)
            return attributeNames(record.attributes);
    throw Exception("There is no property \"" + property + "\".");
}

} // namespace

void Prop::setTarget(double celsius)
{
    bool const isBearable = celsius >= 5 && celsius <= 35;
    if (!isBearable)
        throw Exception("The target is between 5 and 35 degrees.");
    target_ = celsius;
}

double Prop::lendReading()
{
    ++lent_;
    return actual();
}

void PropWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describeThermostat()
                     .constructor()
                     .method("unlock", &Prop::unlock, "pin")
                     .staticMethod("attributesOf", &attributesOfProperty, "property"));
}

bool PropWrapper::destroyInstanceData(COSInterface*, void* data)
{
    std::unique_ptr<Prop> const thermostat(static_cast<Prop*>(data));
    return basic::BindingRegistry::release(data);
}

} // namespace orbis::factory::samples
