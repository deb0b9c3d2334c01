#include "Angle.hpp"

#include "orbis/factory.hpp"

#include <cmath>
#include <optional>

/// A compass needle, which has a heading once it has been turned.
class Needle {
public:
    virtual ~Needle() = default;

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

template <>
struct orbis::factory::HostClass<Needle> {
    static constexpr char const* name = "compass.Needle";
};

namespace {

using namespace orbis::factory;

class NeedleInfo final : public HandleClassInfo<Needle, 1> {
public:
    NeedleInfo() : HandleClassInfo("compass.Needle", "A compass needle; angles are in degrees") {}

    void initializeClass(orbis::COSClass* cls) override
    {
        Angle const quarter{90 * Angle::radiansOfDegree};
        publish(cls, describe<Needle>()
                         .constructor()
                         .method("turn", &Needle::turn, "by", withDefaults(quarter))
                         .property("heading", &Needle::heading, &Needle::setHeading));
    }
};

} // namespace

void publishModule(orbis::COSPackage* package)
{
    package->addClass(new NeedleInfo);
}
