#pragma once

#include "system/TypeReference.hpp"

#include "orbis/COSPropInfo.hpp"

#include <memory>
#include <optional>

namespace velmara {

class Class;

/// A published property: its descriptor with the answers that reading and writing need, asked once.
struct Property {
    Property(std::unique_ptr<orbis::COSPropInfo> descriptor, Class const& definer);

    /// The type of its values. Asked for when first needed, since a class may be described before the classes
    /// of its properties are published; throws "VELMARA:property:dataType" while there is no such type.
    TypeReference const& type() const;

    std::unique_ptr<orbis::COSPropInfo> info;
    Name name;
    Class const& definingClass;
    orbis::MemberAccess getAccess;
    orbis::MemberAccess setAccess;
    bool isStatic;
    bool isAbstract;
    bool isSealed;
    bool isVisible;

private:
    mutable std::optional<TypeReference> type_;
};

} // namespace velmara
