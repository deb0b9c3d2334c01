#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/classes/NativeClassRecord.hpp"
#include "orbis/factory/detail/members/CallableForm.hpp"
#include "orbis/factory/detail/members/Copying.hpp"
#include "orbis/factory/detail/members/PropertyRecord.hpp"

#include "orbis/COSClass.hpp"

#include <vector>

namespace orbis::factory {

/// The description of a class: a plain value that can be inspected without a host.
class ORBIS_FACTORY_API ClassDescription {
public:
    /// Without members.
    explicit ClassDescription(NativeClassRecord const& native);
    ClassDescription(ClassDescription const&);
    virtual ~ClassDescription();

    char const* hostName() const;            ///< full dotted name
    NativeClassRecord const& native() const; ///< the class itself

    /// Direct superclasses, in the order of description.
    std::vector<NativeClassRecord> const& superclasses() const;
    std::vector<MemberRecord> const& members() const;      ///< constructors and methods, in the order of description
    std::vector<PropertyRecord> const& properties() const; ///< in the order of description

    /// How objects are copied; null when they are not.
    detail::Copying const* copying() const;

protected:
    /// For `ClassDescriber`: append superclasses, callable members and properties.
    void add(NativeClassRecord const& superclass);
    void add(MemberRecord record); ///< a callable member

    /// A callable member by its parts.
    void add(detail::CallableForm const& form, char const* name, impl::Callable target, char const* parameterNames,
             MethodText text);
    void add(std::vector<MemberRecord> records); ///< a callable member with the overloads that its default values make

    /// A property; a form is null where it is not read, or not written.
    void add(char const* name, detail::GetterForm const* getterForm, impl::Callable getter,
             detail::SetterForm const* setterForm, impl::Callable setter, PropertyText text);

    /// The functors of the last property.
    void keep(detail::KeptObject const& getter, detail::KeptObject const& setter);

    /// `copying` lives as long as the process, or the library that describes.
    void setCopying(detail::Copying const& copying);

private:
    NativeClassRecord native_;
    std::vector<NativeClassRecord> superclasses_;
    std::vector<MemberRecord> members_;
    std::vector<PropertyRecord> properties_;
    detail::Copying const* copying_ = nullptr;
};

/// Adds to the host class its superclasses, which must be published, and a descriptor for every member: constructors,
/// with one that copies where objects can be copied and none is described, then methods, then properties, each kind in
/// the order of description. Call it from the class info's
/// `initializeClass`. Throws "orbis_factory:orbis_factory:member_not_published" when a member's descriptor cannot be
/// created or the host rejects it; descriptors added before that stay with the host.
ORBIS_FACTORY_API void publish(COSClass* cls, ClassDescription const& description);

} // namespace orbis::factory
