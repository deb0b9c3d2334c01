#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/classes/HostEnumeration.hpp"

#include <vector>

namespace orbis::factory::samples {

enum class Gear { Reverse = -1, Neutral, First, Second };

/// A gearbox. Scripts define the class of its gears, in the host language; only the enumerators' names must match. Each
/// virtual machine has one.
class N2 : public full::Wrappable {
public:
    static N2* gearbox();

    Gear gear() const { return gear_; }
    void setGear(Gear gear) { gear_ = gear; }
    std::vector<Gear> gears() const { return {Gear::Reverse, Gear::Neutral, Gear::First, Gear::Second}; }

private:
    Gear gear_ = Gear::Neutral;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostEnumeration<orbis::factory::samples::Gear> {
    using Gear = samples::Gear;
    static constexpr char const* name = "vehicle.Gear";
    static constexpr bool isVelmaraImplemented = true;
    static constexpr Enumerator<Gear> enumerators[] = {
        {"Reverse", Gear::Reverse}, {"Neutral", Gear::Neutral}, {"First", Gear::First}, {"Second", Gear::Second}};
};

template <>
struct orbis::factory::HostClass<orbis::factory::samples::N2> {
    static constexpr char const* name = "orbis_factory.NP1.N2";
};

namespace orbis::factory::samples {

class N2Wrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    N2Wrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
