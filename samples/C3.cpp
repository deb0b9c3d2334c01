#include "samples/C3.hpp"

#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/withDefaults.hpp"

#include <sstream>

namespace orbis::factory::samples {

C3* C3::kitchen()
{
    return &basic::HvmScoped<C3>::get();
}

std::string C3::brew(std::string const& tea, double minutes, std::optional<std::string> const& extra)
{
    lastMinutes_ = minutes;
    std::ostringstream text;
    text << tea << " tea, " << minutes << " minutes";
    if (extra)
        text << ", with " << *extra;
    return text.str();
}

C3Wrapper::C3Wrapper() : HandleClassInfo(HostClass<C3>::name, "A tea kitchen: values that may be missing, or left out")
{
}

void C3Wrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<C3>()
                     .staticMethod("kitchen", &C3::kitchen)
                     .method("brew", &C3::brew, "tea, minutes, extra", withDefaults(3.0, std::nullopt))
                     .property("lastMinutes", &C3::lastMinutes, &C3::setLastMinutes));
}

} // namespace orbis::factory::samples
