#pragma once

#include "orbis/factory/descriptors/MethodAttributes.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"

namespace orbis::factory {

/// A text for the users of a member, a literal, and the member's attributes, which may stand in its place. Passed to
/// every member that is described, so it is as small as it can be.
template <class Attributes>
class MemberText {
public:
    MemberText() = default;
    MemberText(char const* given) : text_(given) {} ///< not null

    /// Attributes without a text.
    ORBIS_FACTORY_API MemberText(Attributes const& given);
    ORBIS_FACTORY_API MemberText operator+(Attributes const& more) const; ///< with these attributes too

    char const* text() const { return text_; }       ///< "" where there is none
    ORBIS_FACTORY_API Attributes attributes() const; ///< those given

private:
    char const* text_ = "";
    unsigned long long attributes_ = 0; ///< a whole word, so that no padding must be cleared to pass it
};

using MethodText = MemberText<MethodAttributes>;     ///< of methods and constructors
using PropertyText = MemberText<PropertyAttributes>; ///< of properties

} // namespace orbis::factory
