#include "samples/N3.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/base/argumentErrors.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include <array>
#include <cmath>
#include <stdexcept>

namespace orbis::factory::samples {

N3* N3::office()
{
    return &basic::HvmScoped<N3>::get();
}

void N3::send(std::string const& recipient, double kilograms)
{
    bool const canBeCarried = kilograms > 0 && kilograms <= 20;
    if (!canBeCarried)
        throw Exception("The parcel for " + recipient + " is refused: it weighs more than 0 and up to 20 kilograms.");
    if (sent_ < 1'000'000)
        ++sent_;
}

std::string N3::shelf(std::int32_t number) const
{
    static constexpr std::array shelves{"letters", "parcels", "lost and found"};
    if (number < 0 || static_cast<std::size_t>(number) >= shelves.size())
        throw std::out_of_range("There are shelves 0 to 2.");
    return shelves[static_cast<std::size_t>(number)];
}

void N3::stamp(std::int32_t page) const
{
    errorMustBeString(static_cast<std::size_t>(std::abs(static_cast<std::int64_t>(page))));
}

void N3::drop() const
{
    throw sent_;
}

N3Wrapper::N3Wrapper()
    : HandleClassInfo(HostClass<N3>::name, "A parcel office: how errors of native code reach scripts")
{
}

void N3Wrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<N3>()
                     .staticMethod("office", &N3::office)
                     .method("send", &N3::send, "recipient, kilograms")
                     .method("shelf", &N3::shelf, "number")
                     .method("stamp", &N3::stamp, "page")
                     .method("drop", &N3::drop)
                     .property("sent", &N3::sent));
}

} // namespace orbis::factory::samples
