#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <span>
#include <vector>

namespace orbis::factory::samples {

/// The rain gauge of a garden: whole numeric arrays as arguments and results. Each virtual machine has one.
class C2 : public full::Wrappable {
public:
    static C2* gauge();

    /// Millimetres, day by day. Throws for negative amounts.
    std::vector<double> const& days() const { return days_; }
    void setDays(std::span<double const> days);

    std::vector<double> sums() const;
    std::vector<bool> wetterThan(double millimetres) const;

    /// The amounts of the days with these numbers, counted from 1. Throws for other numbers.
    std::vector<float> pick(std::vector<std::int32_t> const& numbers) const;

private:
    std::vector<double> days_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::C2> {
    static constexpr char const* name = "orbis_factory.P1.P2.C2";
};

namespace orbis::factory::samples {

class C2Wrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    C2Wrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
