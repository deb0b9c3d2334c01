#pragma once

#include "orbis/access.hpp"

namespace velmara {

/// What the descriptor of a property says of it, in the order in which it is asked, once.
struct PropertyTraits {
    bool hasDefault = false;                                                           ///< a default value is described
    orbis::MemberAccess getAccess = orbis::MemberAccess::Public;                       ///< who may read it
    orbis::ExtendedMemberAccess extendedGetAccess = orbis::ExtendedMemberAccess::None; ///< a refinement of that
    orbis::MemberAccess setAccess = orbis::MemberAccess::Public;                       ///< who may write it
    orbis::ExtendedMemberAccess extendedSetAccess = orbis::ExtendedMemberAccess::None; ///< a refinement of that
    bool isSealed = false;             ///< subclasses may not redefine it
    bool hasInternalDefault = false;   ///< its default value is the class's own matter
    bool isInitAllowed = false;        ///< may be set at construction
    bool isDefaultAllowed = false;     ///< may have its default value
    bool isResetAllowed = false;       ///< may be set to its default value again
    bool isAbstract = false;           ///< without accessors: neither read nor written
    bool isTransient = false;          ///< not saved with the object
    bool isCopyAllowed = false;        ///< copied with the object
    bool isWarnOnCopyError = false;    ///< a failing copy is a warning
    bool isListenerGetAllowed = false; ///< reads may be watched
    bool isListenerSetAllowed = false; ///< writes may be watched
    bool isInspectAllowed = false;     ///< tools may read it
    bool isAbortSet = false;           ///< writing the value it has may be skipped
    bool isVisible = true;             ///< lists show it
    bool isNeverAmbiguous = false;     ///< preferred where a shortened name fits several
    double partialMatchPriority = 0;   ///< the same, by degree
    bool isStatic = false;             ///< of the class, not of an object
    bool isDependent = false;          ///< computed from other properties
    bool isGrandfathered = false;      ///< kept for old scripts
    bool isWeakReference = false;      ///< refers to an object without keeping it alive
    bool canContainInterfaces = false; ///< the value may refer to host objects
    bool isDestructible = false;       ///< the value may be destroyed with the object
};

} // namespace velmara
