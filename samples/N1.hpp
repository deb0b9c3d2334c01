#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/types/DataTypePolicy.hpp"

#include <chrono>

namespace orbis::factory::samples {

using Date = std::chrono::year_month_day;

/// A calendar: a native type of its own, marshaled as text. Each virtual machine has one.
class N1 : public full::Wrappable {
public:
    static N1* calendar();

    Date today() const { return today_; }
    void setToday(Date today) { today_ = today; }

    /// Throws for dates outside the years 1 to 9999.
    Date after(std::int32_t days) const;
    std::int32_t daysUntil(Date date) const;

private:
    Date today_ = Date(std::chrono::year(2000), std::chrono::January, std::chrono::day(1));
};

} // namespace orbis::factory::samples

/// Marshals dates as "2024-02-29".
template <>
struct orbis::factory::HostDataType<orbis::factory::samples::Date> {
    static constexpr char const* name = "char vector";
    static hvArray* toHost(samples::Date const& date);
    static samples::Date fromHost(hvArray* value); ///< throws unless it is a date of the years 1 to 9999
};

template <>
struct orbis::factory::HostClass<orbis::factory::samples::N1> {
    static constexpr char const* name = "orbis_factory.NP1.NP2.N1";
};

namespace orbis::factory::samples {

class N1Wrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    N1Wrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
