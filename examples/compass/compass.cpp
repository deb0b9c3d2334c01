#include "Angle.hpp"

#include "orbis/factory.hpp"

#include <cmath>
#include <optional>

/// A compass needle, which has a heading once it has been turned.
class Needle {
public:
    std::optional<Angle> heading() const { return heading_; }

    /// Turns clockwise and returns the new heading.
    Angle turn(Angle by)
    {
        Angle const from = heading_.value_or(Angle());
        heading_ = Angle{std::remainder(from.radians + by.radians, 2 * std::acos(-1.0))};
        return *heading_;
    }

    void setHeading(std::optional<Angle> heading) { heading_ = heading; }

private:
    std::optional<Angle> heading_;
};

void publishModule(orbis::factory::Module& compass)
{
    Angle const quarter{90 * Angle::radiansOfDegree};
    compass.publish<Needle>("Needle", "A compass needle; angles are in degrees")
        .constructor()
        .method("turn", &Needle::turn, "by", orbis::factory::withDefaults(quarter), "Turns clockwise")
        .property("heading", &Needle::heading, &Needle::setHeading, "Nothing until it was turned");
}
