#pragma once

#include "types/TypeReference.hpp"

#include "velmara/PropertyTraits.hpp"

#include "orbis/COSPropInfo.hpp"

#include <memory>
#include <optional>
#include <string>

namespace velmara {

class ObjectClass;

/// A published property: its descriptor, and what that said of itself when it was published.
struct Property {
    /// Asks all questions that need no object, in the order in which they are declared.
    Property(std::unique_ptr<orbis::COSPropInfo> descriptor, ObjectClass const& definer);

    /// The type of its values. Looked up again when it was missing before, since a class may be described before the
    /// classes of its properties are published; throws "VELMARA:property:dataType" while there is no such type.
    TypeReference const& type() const { return type_ ? *type_ : requireType(); }

    bool hasType() const { return type_ || askType() != nullptr; }

    std::unique_ptr<orbis::COSPropInfo> info;
    Name name;
    ObjectClass const& definingClass;
    std::string description;
    std::string detailedDescription;
    PropertyTraits traits;
    bool canBeRead = false; ///< by a script, if there is an object where it needs one
    bool canBeWritten = false;

private:
    TypeReference const* askType() const;
    void askTypeQuietly() const noexcept;
    TypeReference const& requireType() const;

    mutable std::optional<TypeReference> type_;
};

} // namespace velmara
