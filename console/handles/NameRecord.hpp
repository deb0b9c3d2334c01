#pragma once

#include "handles/Member.hpp"

#include "velmara/Hvm.hpp"

#include <map>
#include <string>
#include <string_view>

namespace velmara::console {

/// A dotted name that the script has seen, and what was published under it when that was asked last.
class NameRecord {
public:
    explicit NameRecord(std::string fullName) : constructors_(MemberName(std::move(fullName))) {}

    std::string const& text() const { return constructors_.name.owner(); }

    /// Of the class.
    Member& constructors() { return constructors_; }

    /// What is published under it now.
    NameKind kind(Hvm& hvm)
    {
        if (publication_ != hvm.publicationNumber()) {
            kind_ = hvm.lookUp(text());
            publication_ = hvm.publicationNumber(); // now: looking it up may have published it
        }
        return kind_;
    }

private:
    Member constructors_;
    NameKind kind_ = NameKind::None;
    std::uint64_t publication_ = 0;
};

/// One record for each name, for as long as the session: proxies refer to them.
class NameRecords {
public:
    NameRecord& of(std::string_view fullName)
    {
        return names_.try_emplace(std::string(fullName), std::string(fullName)).first->second;
    }

private:
    std::map<std::string, NameRecord> names_;
};

} // namespace velmara::console
