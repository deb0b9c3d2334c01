#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <limits>

namespace orbis::factory::samples {

/// Returns a value of every primitive type: the greatest, if there is one.
class OrbisFactoryBuiltInTester : public full::Wrappable {
public:
    double getDouble() const { return greatest<double>; }
    float getSingle() const { return greatest<float>; }
    std::int8_t getInt8() const { return greatest<std::int8_t>; }
    std::int16_t getInt16() const { return greatest<std::int16_t>; }
    std::int32_t getInt32() const { return greatest<std::int32_t>; }
    std::int64_t getInt64() const { return greatest<std::int64_t>; }
    std::uint8_t getUint8() const { return greatest<std::uint8_t>; }
    std::uint16_t getUint16() const { return greatest<std::uint16_t>; }
    std::uint32_t getUint32() const { return greatest<std::uint32_t>; }
    std::uint64_t getUint64() const { return greatest<std::uint64_t>; }
    bool getLogical() const { return true; }
    char getChar() const { return '~'; }

private:
    template <class T>
    static constexpr T greatest = std::numeric_limits<T>::max();
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::OrbisFactoryBuiltInTester> {
    static constexpr char const* name = "OrbisFactoryBuiltInTester";
};

namespace orbis::factory::samples {

/// The native object is the instance data, bound by the address of its base `Wrappable`.
class OrbisFactoryBuiltInTesterClassInfo final : public HandleClassInfo<full::Wrappable, 0> {
public:
    OrbisFactoryBuiltInTesterClassInfo();
    void initializeClass(COSClass* cls) override;
    void* createInstanceData() override;
    bool destroyInstanceData(COSInterface* object, void* data) override;
    char const* nativeOwner() const override { return "host"; }
};

} // namespace orbis::factory::samples
