#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <string>

namespace orbis::factory::samples {

/// A parcel office, in which everything goes wrong that can: what native code throws reaches the script.
class N3 : public full::Wrappable {
public:
    static N3* office();

    /// A sentence for the script's user.
    void send(std::string const& recipient, double kilograms);

    /// What the standard library throws.
    std::string shelf(std::int32_t number) const;

    /// An error that has an identity.
    void stamp(std::int32_t page) const;

    /// Something that is no exception at all.
    void drop() const;

    std::int32_t sent() const { return sent_; }

private:
    std::int32_t sent_ = 0;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::N3> {
    static constexpr char const* name = "orbis_factory.NP1.NP2.N3";
};

namespace orbis::factory::samples {

class N3Wrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    N3Wrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts make none
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
