#include "samples/C2.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/NumericSpanPolicy.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"

#include <algorithm>
#include <numeric>

namespace orbis::factory::samples {

C2* C2::gauge()
{
    return &basic::HvmScoped<C2>::get();
}

void C2::setDays(std::span<double const> days)
{
    if (!std::ranges::all_of(days, [](double day) { return day >= 0; }))
        throw Exception("Rain is 0 millimetres or more.");
    days_.assign(days.begin(), days.end());
}

std::vector<double> C2::sums() const
{
    std::vector<double> sums(days_.size());
    std::partial_sum(days_.begin(), days_.end(), sums.begin());
    return sums;
}

std::vector<bool> C2::wetterThan(double millimetres) const
{
    std::vector<bool> wetter;
    wetter.reserve(days_.size());
    for (double const day : days_)
        wetter.push_back(day > millimetres);
    return wetter;
}

std::vector<float> C2::pick(std::vector<std::int32_t> const& numbers) const
{
    std::vector<float> picked;
    picked.reserve(numbers.size());
    for (std::int32_t const number : numbers) {
        if (number < 1 || static_cast<std::size_t>(number) > days_.size())
            throw Exception("There is no day " + std::to_string(number) + ".");
        picked.push_back(static_cast<float>(days_[static_cast<std::size_t>(number) - 1]));
    }
    return picked;
}

C2Wrapper::C2Wrapper() : HandleClassInfo(HostClass<C2>::name, "A rain gauge: whole arrays of numbers, in and out") {}

void C2Wrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<C2>()
                     .staticMethod("gauge", &C2::gauge)
                     .method("setDays", &C2::setDays, "days")
                     .method("wetterThan", &C2::wetterThan, "millimetres")
                     .method("pick", &C2::pick, "numbers")
                     .property("days", &C2::days)
                     .property("sums", &C2::sums));
}

} // namespace orbis::factory::samples
