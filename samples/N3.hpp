#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <string>

namespace orbis::factory::samples {

/// A parcel office that fails in every possible way: exceptions of native code reach the script.
class N3 : public full::Wrappable {
public:
    static N3* office();

    /// Throws `Exception`, with a sentence for the script's user.
    void send(std::string const& recipient, double kilograms);

    /// Throws an exception of the standard library.
    std::string shelf(std::int32_t number) const;

    /// Throws an error with an identity.
    void stamp(std::int32_t page) const;

    /// Throws something that is no exception.
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
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
