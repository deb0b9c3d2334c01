#pragma once

#include "velmara/MemberName.hpp"

#include <map>
#include <string>
#include <string_view>

namespace velmara::console {

enum class MemberKind { Callable, Property, StaticProperty, Enumerator };

/// A member of a class, or a function of a package, that the script has named.
struct Member {
    MemberName name;
    MemberKind kind = MemberKind::Callable;
    bool isCalledOnObjects = false; ///< of a callable one, which may be both
    bool isCalledOnClass = false;
};

/// One record for each name, for as long as the session: functions of the script refer to them.
class Members {
public:
    Member& ofClass(std::string_view className, std::string_view name)
    {
        return members_.try_emplace(std::string(className).append(1, ':').append(name),
                                    Member{MemberName(std::string(className), std::string(name))})
            .first->second;
    }

    Member& function(std::string_view fullName)
    {
        return members_.try_emplace(std::string(fullName), Member{MemberName(std::string(fullName))}).first->second;
    }

private:
    std::map<std::string, Member> members_;
};

} // namespace velmara::console
