#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"

#include "orbis/COSPackage.hpp"

#include <vector>

namespace orbis::factory {

/// Package functions as they are described: a value that can be looked at without a host.
class ORBIS_FACTORY_API FunctionDescription {
public:
    FunctionDescription();
    FunctionDescription(FunctionDescription const&);
    ~FunctionDescription();

    std::vector<MemberRecord> const& functions() const;

protected:
    void add(MemberRecord record);

private:
    std::vector<MemberRecord> functions_;
};

/// Adds each function to the package, in the order of description. Throws
/// "orbis_factory:orbis_factory:member_not_published" when one cannot be made, or the host refuses it.
ORBIS_FACTORY_API void publish(COSPackage* package, FunctionDescription const& description);

} // namespace orbis::factory
