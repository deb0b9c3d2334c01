#include "samples/N2.hpp"

#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

namespace orbis::factory::samples {

N2* N2::gearbox()
{
    return &basic::HvmScoped<N2>::get();
}

N2Wrapper::N2Wrapper()
    : HandleClassInfo(HostClass<N2>::name, "A gearbox, whose gears are an enumeration that scripts define")
{
}

void N2Wrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<N2>()
                     .staticMethod("gearbox", &N2::gearbox)
                     .property("gear", &N2::gear, &N2::setGear,
                               "A vehicle.Gear. Scripts define it first: enumeration(\"vehicle.Gear\", {\"Reverse\", "
                               "\"Neutral\", \"First\", \"Second\"})")
                     .property("gears", &N2::gears, "All gears of the box"));
}

} // namespace orbis::factory::samples
