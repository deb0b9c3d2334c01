#pragma once

#include "members/EnumeratorTable.hpp"
#include "members/Method.hpp"
#include "members/Property.hpp"
#include "memory/Retirable.hpp"
#include "names/NameMap.hpp"
#include "names/RecentNames.hpp"

#include <memory>
#include <vector>

namespace velmara {

class Class;

/// The members of a class by name, inherited ones included.
struct MemberTables : Retirable {
    MethodGroup constructors;
    NameMap<MethodGroup> methodGroups;
    mutable RecentNames<MethodGroup> recentMethods;
    NameMap<Property const*> propertiesByName;
    mutable RecentNames<Property> recentProperties;
};

/// What a class info adds while it describes its class. It is dropped as a whole when describing fails.
struct ClassContents : Retirable {
    std::vector<std::unique_ptr<Method>> methods; ///< the class's own, in the order of description
    std::vector<std::unique_ptr<Property>> properties;
    EnumeratorTable enumerators;
    std::vector<Class*> superclasses; ///< direct ones

    /// The class itself first, then its superclasses: each before its own superclasses.
    std::vector<ObjectClass*> linearization;

    std::unique_ptr<MemberTables> tables = std::make_unique<MemberTables>();
};

/// The tables of the first class of the linearization. Throws when a member redefines a sealed one of a superclass.
std::unique_ptr<MemberTables> buildMemberTables(std::vector<ObjectClass*> const& linearization);

} // namespace velmara
