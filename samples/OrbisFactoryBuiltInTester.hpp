#pragma once

#include "orbis/factory/HandleClassInfo.hpp"

#include <cstdint>

namespace orbis::factory::samples {

/// Gives a value of every primitive type: where it has one, the greatest.
class OrbisFactoryBuiltInTester : public full::Wrappable {
public:
    double getDouble() const;
    float getSingle() const;
    std::int8_t getInt8() const;
    std::int16_t getInt16() const;
    std::int32_t getInt32() const;
    std::int64_t getInt64() const;
    std::uint8_t getUint8() const;
    std::uint16_t getUint16() const;
    std::uint32_t getUint32() const;
    std::uint64_t getUint64() const;
    bool getLogical() const;
    char getChar() const;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::OrbisFactoryBuiltInTester> {
    static constexpr char const* name = "OrbisFactoryBuiltInTester";
};

namespace orbis::factory::samples {

/// The native object is the instance data: its address is that of the base `Wrappable`, as which it is bound.
class OrbisFactoryBuiltInTesterClassInfo final : public HandleClassInfo<full::Wrappable, 0> {
public:
    OrbisFactoryBuiltInTesterClassInfo();
    void initializeClass(COSClass* cls) override;
    void* createInstanceData() override;
    bool destroyInstanceData(COSInterface* object, void* data) override;
};

} // namespace orbis::factory::samples
