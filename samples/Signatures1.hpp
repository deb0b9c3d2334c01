#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <string>

namespace orbis::factory::samples {

/// A shop: the total price of 0 to 20 items, each priced in whole cents. Owned by its host object.
class Signatures1 : public full::Wrappable {
public:
    explicit Signatures1(std::string name) : name_(std::move(name)) {}

    /// Accepts any number of prices; published for 0 to 20.
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
