#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace velmara {

/// The name of a class, or of a member of one, that remembers what it meant when it was last used: an operation of
/// `Hvm` that is given one looks nothing up until what is published has changed, or another virtual machine is asked.
/// Used on one thread at a time.
class MemberName {
public:
    /// A method or property of a class; without a `member` the class itself, or a function, by its full name.
    explicit MemberName(std::string owner, std::string member = {})
        : owner_(std::move(owner)),
          member_(std::move(member))
    {
    }

    std::string const& owner() const { return owner_; }   ///< a class, or a function
    std::string const& member() const { return member_; } ///< empty for the owner itself

    /// For virtual machines: what it meant at a `publicationNumber`. Neither pointer is valid at another one.
    struct Meaning {
        std::uint64_t publication = 0; ///< the number at which the pointers were found
        void* cls = nullptr;           ///< the class
        void const* member = nullptr;  ///< the overloads or the property
    };
    Meaning& meaning() { return meaning_; } ///< to be read and written by virtual machines only

private:
    std::string owner_;
    std::string member_;
    Meaning meaning_;
};

} // namespace velmara
