#pragma once

#include "orbis/access.hpp"

namespace velmara {

/// What the descriptor of a property says of it, in the order in which it is asked, once.
struct PropertyTraits {
    bool hasDefault = false;
    orbis::MemberAccess getAccess = orbis::MemberAccess::Public;
    orbis::ExtendedMemberAccess extendedGetAccess = orbis::ExtendedMemberAccess::None;
    orbis::MemberAccess setAccess = orbis::MemberAccess::Public;
    orbis::ExtendedMemberAccess extendedSetAccess = orbis::ExtendedMemberAccess::None;
    bool isSealed = false;
    bool hasInternalDefault = false;
    bool isInitAllowed = false;
    bool isDefaultAllowed = false;
    bool isResetAllowed = false;
    bool isAbstract = false;
    bool isTransient = false;
    bool isCopyAllowed = false;
    bool isWarnOnCopyError = false;
    bool isListenerGetAllowed = false;
    bool isListenerSetAllowed = false;
    bool isInspectAllowed = false;
    bool isAbortSet = false;
    bool isVisible = true;
    bool isNeverAmbiguous = false;
    double partialMatchPriority = 0;
    bool isStatic = false;
    bool isDependent = false;
    bool isGrandfathered = false;
    bool isWeakReference = false;
    bool canContainInterfaces = false;
    bool isDestructible = false;
};

} // namespace velmara
