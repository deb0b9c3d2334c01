#pragma once

#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"

namespace orbis::factory::samples {

/// A place on a map, in metres from its centre. Shows every form of method.
class MFVT {
public:
    MFVT() = default;
    MFVT(double metresEast, double metresNorth) : east(metresEast), north(metresNorth) {}

    void move(double metresEast, double metresNorth);
    void move(MFVT const& by);
    double distanceTo(MFVT const& other) const noexcept;

    /// Rotates a place clockwise around the centre; `quarters` may be negative.
    static MFVT turned(MFVT const& place, int quarters);

    double east = 0;
    double north = 0;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::MFVT> {
    static constexpr char const* name = "orbis_factory.MFVT";
    using Policy = ValuePolicy;
};

namespace orbis::factory::samples {

class MFVTCI final : public NonHandleClassInfo<MFVT, MFVT> {
public:
    MFVTCI();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
