#pragma once

#include "velmara/Listing.hpp"
#include "velmara/MemberName.hpp"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmara::console {

enum class MemberKind { Callable, Property, StaticProperty, Enumerator };

/// A member of a class, or a function of a package, that the script has named.
struct Member {
    explicit Member(MemberName memberName) : name(std::move(memberName)) {}

    /// "PACKAGE.CLASS.MEMBER", or that of the function.
    std::string fullName() const { return name.member().empty() ? name.owner() : name.owner() + '.' + name.member(); }

    MemberName name;
    MemberKind kind = MemberKind::Callable;
    bool isCalledOnObjects = false; ///< of a callable one, which may be both
    bool isCalledOnClass = false;

    /// The parameters that a script passes, of each of its forms, as they were at a `publicationNumber`.
    std::vector<std::vector<ParameterRecord>> forms;
    std::uint64_t formsPublication = 0;
};

/// One record for each name, for as long as the session: functions of the script refer to them.
class Members {
public:
    Member& ofClass(std::string_view className, std::string_view name)
    {
        return members_
            .try_emplace(std::string(className).append(1, ':').append(name),
                         MemberName(std::string(className), std::string(name)))
            .first->second;
    }

    Member& function(std::string_view fullName)
    {
        return members_.try_emplace(std::string(fullName), MemberName(std::string(fullName))).first->second;
    }

private:
    std::map<std::string, Member> members_;
};

} // namespace velmara::console
