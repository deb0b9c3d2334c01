#pragma once

#include "bench/CallScenarios.hpp"

#include "orbis/factory/descriptors/PropertyImplBase.hpp"
#include "orbis/factory/makeProperty.hpp"

#include <cstddef>
#include <memory>
#include <stdexcept>

namespace bench {

class Gauge {
public:
    virtual ~Gauge() = default;
    std::int32_t level() const;
    void setLevel(std::int32_t level);

private:
    std::int32_t level_ = 1;
};

[[gnu::noinline]] inline std::int32_t Gauge::level() const
{
    return level_;
}

[[gnu::noinline]] inline void Gauge::setLevel(std::int32_t level)
{
    level_ = level;
}

inline constexpr char const* gaugeName = "bench_properties.Gauge";

} // namespace bench

template <>
struct orbis::factory::HostClass<bench::Gauge> {
    static constexpr char const* name = bench::gaugeName;
};

namespace bench {

using orbis::COSInterface;
using orbis::factory::impl::PropertyImplBase;

class GaugeInfo final : public orbis::factory::HandleClassInfo<Gauge, 1> {
public:
    GaugeInfo() : HandleClassInfo(gaugeName, "") {}
    void initializeClass(orbis::COSClass* cls) override { publish(cls, description()); }

    static orbis::factory::ClassDescription description()
    {
        return orbis::factory::describe<Gauge>().constructor().property("level", &Gauge::level, &Gauge::setLevel);
    }
};

/// The reference: what a careful author would write by hand, with the same host calls as the generated getter and
/// setter.
class HandWrittenLevel final : public PropertyImplBase {
public:
    HandWrittenLevel() : PropertyImplBase("level", "", {}) {}

    orbis::COSDataTypePtr getDataType() const override { return "int32 scalar"; }
    COSValue getValue(COSInterface* object) const override { return COSValue(nativeOf(object).level()); }
    void setValue(COSInterface* object, COSValue value) const override
    {
        nativeOf(object).setLevel(value.scalar<std::int32_t>());
    }
    void releaseValue(COSInterface*, COSValue) const override {}
    bool canContainInterfaces() const override { return false; }

private:
    static Gauge& nativeOf(COSInterface* object)
    {
        Gauge* gauge = nullptr;
        if (object)
            gauge = static_cast<Gauge*>(object->getNativeObject(COSNameID(gaugeName)));
        if (!gauge)
            throw std::runtime_error("no object");
        return *gauge;
    }
};

/// Reads and writes of a property; each scenario makes `count` of them.
class PropertyScenarios {
public:
    /// Reads like the host, which knows only a descriptor's base class, and releases the value.
    [[gnu::noipa]] void read(orbis::COSPropInfo const& property, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            property.releaseValue(host_, property.getValue(host_));
    }

    [[gnu::noipa]] void write(orbis::COSPropInfo const& property, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            property.setValue(host_, COSValue(std::int32_t{7}));
    }

    void get(std::size_t count) { read(*described_, count); }
    void handWrittenGet(std::size_t count) { read(handWritten_, count); }
    void set(std::size_t count) { write(*described_, count); }
    void handWrittenSet(std::size_t count) { write(handWritten_, count); }

    void getByName(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            fixture_.hvm.get(object_.get(), "level");
    }

    void setByName(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            fixture_.hvm.set(object_.get(), "level", seven_.get());
    }

private:
    /// The descriptor as it is published.
    static std::unique_ptr<orbis::COSPropInfo> describedLevel()
    {
        orbis::factory::PropertyRecord const record = GaugeInfo::description().properties().at(0);
        return orbis::factory::makeProperty(record);
    }

    velmara::ArrayPtr publishAndConstruct()
    {
        orbis::factory::registerOrbisPackage("bench_properties",
                                             [](orbis::COSPackage* package) { package->addClass(new GaugeInfo); });
        return fixture_.hvm.construct(gaugeName);
    }

    Fixture fixture_;
    velmara::ArrayPtr object_ = publishAndConstruct();
    velmara::ArrayPtr seven_ = Fixture::number(7);
    COSInterface* host_ = orbis::omGetArrayElement(object_.get(), 0);
    std::unique_ptr<orbis::COSPropInfo> described_ = describedLevel();
    HandWrittenLevel handWritten_;
};

} // namespace bench
