#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <string>

namespace orbis::factory::samples {

/// A shop: what 0 to 20 things cost together, each priced in whole cents. Belongs to its host object.
class Signatures1 : public full::Wrappable {
public:
    explicit Signatures1(std::string name) : name_(std::move(name)) {}

    /// Any number of prices; published for 0 to 20 of them.
    template <class... Price>
    double total(Price... price)
    {
        double const sum = (0.0 + ... + price);
        takings_ += sum;
        return sum;
    }

    std::string const& name() const { return name_; }
    double takings() const { return takings_; }

private:
    std::string name_;
    double takings_ = 0;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::Signatures1> {
    static constexpr char const* name = "orbis_factory.Signatures1";
};

namespace orbis::factory::samples {

class Signatures1MetaData final : public HandleClassInfo<full::Wrappable, 1> {
public:
    Signatures1MetaData();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
