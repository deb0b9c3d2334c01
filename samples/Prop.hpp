#pragma once

#include "orbis/factory/classes/HostClass.hpp"

#include "orbis/COSClassInfo.hpp"

#include <cstdint>
#include <string>

namespace orbis::factory::samples {

/// A thermostat. Shows every form and every attribute of a property.
class Prop {
public:
    static constexpr double absoluteZero = -273.15;

    double target() const { return target_; }
    void setTarget(double celsius);

    /// The room always lags a little behind.
    double actual() const { return target_ - 0.5; }

    std::string const& room() const { return room_; }
    void setRoom(std::string room) { room_ = std::move(room); }

    /// Locks the thermostat with a PIN, which cannot be read.
    void setPin(int pin) { pin_ = pin; }
    bool unlock(int pin) const { return pin == pin_; }

    /// Readings are lent, and counted until they are released.
    double lendReading();
    void takeReadingBack() { --lent_; }
    int lent() const { return lent_; }

    std::int32_t serial = 4711;
    bool isOn = false;
    std::string maker = "Velm & Sons";
    std::int32_t fuse = 16;
    std::string diary;
    std::string wiring = "three wires";

private:
    double target_ = 20;
    std::string room_ = "hall";
    int pin_ = 0;
    int lent_ = 0;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::Prop> {
    static constexpr char const* name = "orbis_factory.Prop";
};

namespace orbis::factory::samples {

/// Derives directly from the host's base. The native object is the instance data of its host object.
class PropWrapper final : public COSClassInfo {
public:
    char const* getName() const override { return HostClass<Prop>::name; }
    char const* getDescription() const override { return "A thermostat; properties of every form, every attribute"; }
    bool isHandle() const override { return true; }
    void initializeClass(COSClass* cls) override;
    void* createInstanceData() override { return new Prop; }
    bool destroyInstanceData(COSInterface* object, void* data) override;
};

} // namespace orbis::factory::samples
