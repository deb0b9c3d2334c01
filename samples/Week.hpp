#pragma once

#include "orbis/factory/classes/EnumerationClassInfo.hpp"
#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"

#include <array>
#include <vector>

namespace orbis::factory::samples {

enum class Weekday { Monday = 1, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday };

/// The working hours of a week. A value: scripts pass and receive copies.
class Week {
public:
    Week() = default;

    /// Sets the hours of each day from Monday to Friday.
    explicit Week(double hoursADay);

    double total() const;
    double hoursOn(Weekday day) const;

    /// Throws unless `hours` is at least 0 and fits a day.
    void setHours(std::vector<Weekday> const& days, double hours);

    /// The first one, if there are several.
    Weekday busiestDay() const;
    std::vector<Weekday> daysOff() const;

    Week longerOfEach(Week const& other) const;

private:
    std::array<double, 7> hours_ = {};
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostEnumeration<orbis::factory::samples::Weekday> {
    using Weekday = samples::Weekday;
    static constexpr char const* name = "orbis_factory.Weekday";
    static constexpr Enumerator<Weekday> enumerators[] = {
        {"Monday", Weekday::Monday},     {"Tuesday", Weekday::Tuesday}, {"Wednesday", Weekday::Wednesday},
        {"Thursday", Weekday::Thursday}, {"Friday", Weekday::Friday},   {"Saturday", Weekday::Saturday},
        {"Sunday", Weekday::Sunday}};
};

template <>
struct orbis::factory::HostClass<orbis::factory::samples::Week> {
    static constexpr char const* name = "orbis_factory.Week";
    using Policy = ValuePolicy;
};

namespace orbis::factory::samples {

class WeekdayInfo final : public EnumerationClassInfo<Weekday> {
public:
    WeekdayInfo() : EnumerationClassInfo("A day of the week") {}
};

class WeekWrapper final : public NonHandleClassInfo<Week, Week> {
public:
    WeekWrapper();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
