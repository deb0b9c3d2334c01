#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <string>

namespace orbis::factory::samples {

/// A span of time, with several constructors. Owned by its host object.
class Ctor : public full::Wrappable {
public:
    Ctor() = default;

    /// Throws for negative values and for more than 24 hours.
    explicit Ctor(double seconds);
    Ctor(std::int32_t hours, std::int32_t minutes, std::int32_t seconds);

    /// "hours:minutes"; throws for other texts.
    explicit Ctor(std::string const& text);

    /// Copies the length of another one.
    explicit Ctor(Ctor const* other);

    double seconds() const { return seconds_; }
    std::string text() const;

private:
    double seconds_ = 0;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::Ctor> {
    static constexpr char const* name = "orbis_factory.Ctor";
};

namespace orbis::factory::samples {

class CtorMetaData final : public HandleClassInfo<full::Wrappable, 1> {
public:
    CtorMetaData();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
