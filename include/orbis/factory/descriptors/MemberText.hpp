#pragma once

#include "orbis/factory/descriptors/MethodAttributes.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"

namespace orbis::factory {

/// A text for the users of a member, a literal; attributes may stand in its place.
template <class Attributes>
struct MemberText {
    MemberText() = default;
    MemberText(char const* given) : text(given) {}
    MemberText(Attributes given) : attributes(given) {}

    MemberText operator+(Attributes const& more) const
    {
        MemberText sum = *this;
        sum.attributes += more;
        return sum;
    }

    char const* text = "";
    Attributes attributes;
};

using MethodText = MemberText<MethodAttributes>;
using PropertyText = MemberText<PropertyAttributes>;

} // namespace orbis::factory
