#pragma once

#include "system/Method.hpp"
#include "system/NameMap.hpp"
#include "system/Property.hpp"

#include <memory>
#include <vector>

namespace velmara {

/// What a class info adds while it describes its class, and the tables that are made of it and of what is
/// inherited. It is dropped as a whole when describing fails.
struct ClassContents {
    std::vector<std::unique_ptr<Method>> methods; ///< the class's own, in the order of description
    std::vector<std::unique_ptr<Property>> properties;
    std::vector<Class*> superclasses; ///< direct ones

    /// The class itself first, then its superclasses: each before its own superclasses.
    std::vector<Class*> linearization;

    MethodGroup constructors;
    NameMap<MethodGroup> methodGroups; ///< inherited ones included
    NameMap<Property const*> propertiesByName;
};

/// Fills the tables of the class that stands first in `contents.linearization`. Refuses members that redefine
/// sealed ones of a superclass.
void buildMemberTables(ClassContents& contents);

} // namespace velmara
