#include "samples/attributeNames.hpp"

#include <initializer_list>

namespace orbis::factory::samples {

namespace {

struct Named {
    bool isSet;
    char const* name;
};

std::string join(std::initializer_list<Named> attributes)
{
    std::string names;
    for (auto const& [isSet, name] : attributes)
        if (isSet)
            names += (names.empty() ? "" : " ") + std::string(name);
    return names;
}

} // namespace

std::string attributeNames(MethodAttributes attributes)
{
    MemberAccess const access = attributes.getMemberAccess();
    return join({{attributes.isStatic(), "Static"},
                 {attributes.isAbstract(), "Abstract"},
                 {attributes.isSealed(), "Sealed"},
                 {!attributes.isVisible(), "Hidden"},
                 {!attributes.isLocked(), "Unlocked"},
                 {attributes.isDestructible(), "Indestructable"},
                 {attributes.doesMethodOverrideAllSignatures(), "OverridesAll"},
                 {attributes.forceMemberMethod(), "ForceMembership"},
                 {access == MemberAccess::Protected, "Protected"},
                 {access == MemberAccess::Private, "Private"},
                 {access == MemberAccess::NoAccess, "NoAccess"}});
}

std::string attributeNames(PropertyAttributes attributes)
{
    MemberAccess const get = attributes.getMemberGetAccess();
    MemberAccess const set = attributes.getMemberSetAccess();
    return join({{attributes.isStatic(), "Static"},
                 {attributes.isAbstract(), "Abstract"},
                 {attributes.isSealed(), "Sealed"},
                 {!attributes.isVisible(), "Hidden"},
                 {attributes.isTransient(), "Transient"},
                 {attributes.isDependent(), "Dependent"},
                 {attributes.isAbortSet(), "AbortSet"},
                 {attributes.isInitAllowed(), "InitAllowed"},
                 {attributes.isDefaultAllowed(), "DefaultAllowed"},
                 {attributes.isResetAllowed(), "ResetAllowed"},
                 {attributes.isCopyAllowed(), "CopyAllowed"},
                 {attributes.isInspectAllowed(), "InspectAllowed"},
                 {attributes.isListenerGetAllowed(), "ListenerGetAllowed"},
                 {attributes.isListenerSetAllowed(), "ListenerSetAllowed"},
                 {attributes.isGrandfathered(), "Grandfathered"},
                 {attributes.canContainInterfaces(), "CanContainInterfaces"},
                 {attributes.isDestructible(), "Destructible"},
                 {attributes.forceMemberProperty(), "ForceMembership"},
                 {get == MemberAccess::Protected, "ProtectedGetter"},
                 {get == MemberAccess::Private, "PrivateGetter"},
                 {get == MemberAccess::NoAccess, "NoAccessGetter"},
                 {set == MemberAccess::Protected, "ProtectedSetter"},
                 {set == MemberAccess::Private, "PrivateSetter"},
                 {set == MemberAccess::NoAccess, "NoAccessSetter"}});
}

} // namespace orbis::factory::samples
