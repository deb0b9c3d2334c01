#include "samples/N1.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/StringPolicy.hpp"

#include "libhv/libhv.hpp"

#include <cstdio>

namespace orbis::factory::samples {

N1* N1::calendar()
{
    return &basic::HvmScoped<N1>::get();
}

Date N1::after(std::int32_t days) const
{
    using namespace std::chrono;
    constexpr auto first = sys_days(January / 1 / 1), last = sys_days(December / 31 / 9999);
    auto const now = sys_days(today_);
    if (days < (first - now).count() || days > (last - now).count())
        throw Exception("That is outside the years 1 to 9999.");
    return now + std::chrono::days(days);
}

std::int32_t N1::daysUntil(Date date) const
{
    return static_cast<std::int32_t>((std::chrono::sys_days(date) - std::chrono::sys_days(today_)).count());
}

N1Wrapper::N1Wrapper() : HandleClassInfo(HostClass<N1>::name, "A calendar: a type of its own, which crosses as text") {}

void N1Wrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<N1>()
                     .staticMethod("calendar", &N1::calendar)
                     .method("after", &N1::after, "days")
                     .method("daysUntil", &N1::daysUntil, "date")
                     .property("today", &N1::today, &N1::setToday));
}

} // namespace orbis::factory::samples

namespace orbis::factory {

hvArray* HostDataType<samples::Date>::toHost(samples::Date const& date)
{
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", int(date.year()), unsigned(date.month()), unsigned(date.day()));
    return hvCreateString(text);
}

samples::Date HostDataType<samples::Date>::fromHost(hvArray* value)
{
    std::string const text = Marshaler<StringPolicy>::fromHost<std::string>(value).value();
    int year = 0, length = 0;
    unsigned month = 0, day = 0;
    std::sscanf(text.c_str(), "%4d-%2u-%2u%n", &year, &month, &day, &length);
    samples::Date const date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
    bool const isNumbers = text.find_first_not_of("0123456789-") == text.npos;
    if (!isNumbers || length != 10 || text.size() != 10 || year < 1 || !date.ok())
        throw Exception("\"" + text + "\" is no date: write one as 2024-02-29.");
    return date;
}

} // namespace orbis::factory
