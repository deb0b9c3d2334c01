#include "samples/Week.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"

#include <algorithm>
#include <functional>
#include <numeric>

namespace orbis::factory::samples {

namespace {

std::size_t indexOf(Weekday day)
{
    return static_cast<std::size_t>(day) - static_cast<std::size_t>(Weekday::Monday);
}

Weekday weekday(std::size_t index)
{
    return static_cast<Weekday>(index + static_cast<std::size_t>(Weekday::Monday));
}

double partOfDay(double hours)
{
    bool const isPartOfDay = hours >= 0 && hours <= 24;
    if (!isPartOfDay)
        throw Exception("A day has between 0 and 24 hours.");
    return hours;
}

} // namespace

Week::Week(double hoursADay)
{
    std::fill_n(hours_.begin(), 5, partOfDay(hoursADay));
}

double Week::total() const
{
    return std::accumulate(hours_.begin(), hours_.end(), 0.0);
}

double Week::hoursOn(Weekday day) const
{
    return hours_[indexOf(day)];
}

void Week::setHours(std::vector<Weekday> const& days, double hours)
{
    partOfDay(hours);
    for (Weekday const day : days)
        hours_[indexOf(day)] = hours;
}

Weekday Week::busiestDay() const
{
    auto const longest = std::ranges::max_element(hours_);
    return weekday(static_cast<std::size_t>(longest - hours_.begin()));
}

std::vector<Weekday> Week::daysOff() const
{
    std::vector<Weekday> days;
    for (std::size_t i = 0; i < hours_.size(); ++i)
        if (hours_[i] == 0)
            days.push_back(weekday(i));
    return days;
}

Week Week::longerOfEach(Week const& other) const
{
    Week week;
    std::ranges::transform(hours_, other.hours_, week.hours_.begin(),
                           [](double a, double b) { return std::max(a, b); });
    return week;
}

WeekWrapper::WeekWrapper() : NonHandleClassInfo(HostClass<Week>::name, "The working hours of a week, a value") {}

void WeekWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<Week>()
                     .constructor()
                     .constructor<double>("hoursADay")
                     .method("hoursOn", &Week::hoursOn, "day")
                     .method("setHours", &Week::setHours, "days, hours")
                     .method("longerOfEach", &Week::longerOfEach, "other")
                     .property("total", &Week::total)
                     .property("busiestDay", &Week::busiestDay)
                     .property("daysOff", &Week::daysOff));
}

} // namespace orbis::factory::samples
