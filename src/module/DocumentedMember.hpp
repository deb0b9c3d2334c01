#pragma once

#include "orbis/factory/detail/members/MemberRecord.hpp"

#include <string>

namespace orbis::factory {

/// A member whose parameter names are taken apart into names and texts.
class DocumentedMember {
public:
    explicit DocumentedMember(MemberRecord const& record);
    DocumentedMember(DocumentedMember const&) = delete;
    DocumentedMember& operator=(DocumentedMember const&) = delete;

    /// The member with its names alone. Valid as long as this.
    MemberRecord const& record() const { return record_; }

    /// The member's text, and a line for each parameter that has one.
    std::string const& text() const { return text_; }

private:
    std::string names_;
    std::string text_;
    MemberRecord record_;
};

} // namespace orbis::factory
