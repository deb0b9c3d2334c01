#include "samples/MFVT.hpp"

#include "orbis/factory/describe.hpp"

#include <cmath>
#include <numeric>

namespace orbis::factory::samples {

void MFVT::move(double metresEast, double metresNorth)
{
    east += metresEast;
    north += metresNorth;
}

void MFVT::move(MFVT const& by)
{
    move(by.east, by.north);
}

double MFVT::distanceTo(MFVT const& other) const noexcept
{
    return std::hypot(other.east - east, other.north - north);
}

MFVT MFVT::turned(MFVT const& place, int quarters)
{
    MFVT turned = place;
    for (int i = (quarters % 4 + 4) % 4; i > 0; --i)
        turned = {turned.north, -turned.east};
    return turned;
}

namespace {

/// A free function outside the class, which takes the object first.
MFVT halfwayTo(MFVT* from, MFVT const& to)
{
    return {std::midpoint(from->east, to.east), std::midpoint(from->north, to.north)};
}

} // namespace

MFVTCI::MFVTCI() : NonHandleClassInfo(HostClass<MFVT>::name, "A place on a map, a value, with methods of every form") {}

void MFVTCI::initializeClass(COSClass* cls)
{
    publish(cls, describe<MFVT>()
                     .constructor()
                     .constructor<double, double>("east, north")
                     .method("move", overload<double, double>(&MFVT::move), "metresEast, metresNorth")
                     .method("move", overload<MFVT const&>(&MFVT::move), "by")
                     .method("distanceTo", &MFVT::distanceTo, "other")
                     .method("halfwayTo", &halfwayTo, "from, to")
                     .method(
                         "isNorthOf", [](MFVT* place, MFVT const& other) { return place->north > other.north; },
                         "place, other")
                     .staticMethod("turned", &MFVT::turned, "place, quarters")
                     .staticMethod("pole", [] { return MFVT(0, 10'000'000); })
                     .property("east", &MFVT::east)
                     .property("north", &MFVT::north));
}

} // namespace orbis::factory::samples
