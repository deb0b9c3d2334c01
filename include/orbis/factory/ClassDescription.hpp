#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/classes/NativeClassRecord.hpp"
#include "orbis/factory/detail/members/MemberRecord.hpp"
#include "orbis/factory/detail/members/PropertyRecord.hpp"

#include "orbis/COSClass.hpp"

#include <vector>

namespace orbis::factory {

/// A class as it is described: a value that can be looked at without a host.
class ORBIS_FACTORY_API ClassDescription {
public:
    explicit ClassDescription(NativeClassRecord const& native);
    ClassDescription(ClassDescription const&);
    ~ClassDescription();

    char const* hostName() const;
    NativeClassRecord const& native() const;

    /// Direct ones, in the order of description.
    std::vector<NativeClassRecord> const& superclasses() const;
    std::vector<MemberRecord> const& members() const;
    std::vector<PropertyRecord> const& properties() const;

protected:
    void add(NativeClassRecord const& superclass);
    void add(MemberRecord record);
    void add(PropertyRecord record);

private:
    NativeClassRecord native_;
    std::vector<NativeClassRecord> superclasses_;
    std::vector<MemberRecord> members_;
    std::vector<PropertyRecord> properties_;
};

/// Gives the host class its superclasses, which must be published, and a descriptor for every member: constructors,
/// then methods, then properties, each kind in the order of description. To be called by the class info's
/// `initializeClass`. Throws "orbis_factory:orbis_factory:member_not_published" when a member cannot be made, or the
/// host refuses it; what was handed over before stays the host's.
ORBIS_FACTORY_API void publish(COSClass* cls, ClassDescription const& description);

} // namespace orbis::factory
