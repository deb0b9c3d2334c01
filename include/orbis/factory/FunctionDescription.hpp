#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"

#include "orbis/COSPackage.hpp"

#include <vector>

namespace orbis::factory {

/// The description of package functions: a plain value that can be inspected without a host.
class ORBIS_FACTORY_API FunctionDescription {
public:
    FunctionDescription();
    FunctionDescription(FunctionDescription const&);
    ~FunctionDescription();

    std::vector<MemberRecord> const& functions() const; ///< in the order of description

protected:
    /// For `FunctionDescriber`: append a function, or one with the overloads that its default values make.
    void add(MemberRecord record);
    void add(std::vector<MemberRecord> records); ///< likewise

private:
    std::vector<MemberRecord> functions_;
};

/// Adds each function to the package, in the order of description. Throws
/// "orbis_factory:orbis_factory:member_not_published" when a descriptor cannot be created or the host rejects it.
ORBIS_FACTORY_API void publish(COSPackage* package, FunctionDescription const& description);

} // namespace orbis::factory
