#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <optional>
#include <string>

namespace orbis::factory::samples {

/// A tea kitchen: optional values, and parameters with defaults. Each virtual machine has one.
class C3 : public full::Wrappable {
public:
    static C3* kitchen();

    std::string brew(std::string const& tea, double minutes, std::optional<std::string> const& extra);

    /// Empty until something has been brewed.
    std::optional<double> lastMinutes() const { return lastMinutes_; }
    void setLastMinutes(std::optional<double> minutes) { lastMinutes_ = minutes; }

private:
    std::optional<double> lastMinutes_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::C3> {
    static constexpr char const* name = "orbis_factory.P3.C3";
};

namespace orbis::factory::samples {

class C3Wrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    C3Wrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
