#include "members/Property.hpp"

#include "errors/hostError.hpp"
#include "objects/ObjectClass.hpp"

#include "orbis/COSDataType.hpp"

namespace velmara {

namespace {

Name nameOf(orbis::COSPropInfo const& info)
{
    char const* const name = info.getName();
    if (!name || !*name)
        throwHostError("VELMARA:member", "name");
    return intern(name);
}

std::string text(char const* given)
{
    return given ? given : "";
}

PropertyTraits ask(orbis::COSPropInfo const& info, bool hasDefault)
{
    // Evaluated in this order.
    return {.hasDefault = hasDefault,
            .getAccess = info.getMemberGetAccess(),
            .extendedGetAccess = info.getExtendedGetAccess(),
            .setAccess = info.getMemberSetAccess(),
            .extendedSetAccess = info.getExtendedSetAccess(),
            .isSealed = info.isSealed(),
            .hasInternalDefault = info.hasInternalDefault(),
            .isInitAllowed = info.isInitAllowed(),
            .isDefaultAllowed = info.isDefaultAllowed(),
            .isResetAllowed = info.isResetAllowed(),
            .isAbstract = info.isAbstract(),
            .isTransient = info.isTransient(),
            .isCopyAllowed = info.isCopyAllowed(),
            .isWarnOnCopyError = info.isWarnOnCopyError(),
            .isListenerGetAllowed = info.isListenerGetAllowed(),
            .isListenerSetAllowed = info.isListenerSetAllowed(),
            .isInspectAllowed = info.isInspectAllowed(),
            .isAbortSet = info.isAbortSet(),
            .isVisible = info.isVisible(),
            .isNeverAmbiguous = info.isNeverAmbiguous(),
            .partialMatchPriority = info.getPartialMatchPriority(),
            .isStatic = info.isStatic(),
            .isDependent = info.isDependent(),
            .isGrandfathered = info.isGrandfathered(),
            .isWeakReference = info.isWeakReference(),
            .canContainInterfaces = info.canContainInterfaces(),
            .isDestructible = info.isDestructible()};
}

/// An access refined in a way that is not known here is no public one.
bool isPublic(orbis::MemberAccess access, orbis::ExtendedMemberAccess extended)
{
    return access == orbis::MemberAccess::Public && extended == orbis::ExtendedMemberAccess::None;
}

} // namespace

Property::Property(std::unique_ptr<orbis::COSPropInfo> descriptor, ObjectClass const& definer)
    : info(std::move(descriptor)),
      name(nameOf(*info)),
      definingClass(definer),
      description(text(info->getDescription())),
      detailedDescription(text(info->getDetailedDescription()))
{
    bool const hasDefault = !info->getDefaultValue().isEmpty();
    askTypeQuietly();
    traits = ask(*info, hasDefault);
    canBeRead = !traits.isAbstract && isPublic(traits.getAccess, traits.extendedGetAccess);
    canBeWritten = !traits.isAbstract && isPublic(traits.setAccess, traits.extendedSetAccess);
}

TypeReference const* Property::askType() const
{
    orbis::COSDataTypePtr const dataType = info->getDataType();
    return dataType ? &type_.emplace(intern(dataType->scalarTypeName())) : nullptr;
}

void Property::askTypeQuietly() const noexcept
{
    try {
        askType();
    } catch (...) {
        // Thrown again when the type is needed: the package of its class cannot be populated, say.
    }
}

TypeReference const& Property::requireType() const
{
    if (TypeReference const* const type = askType())
        return *type;
    throwHostError("VELMARA:property", "dataType", {definingClass.name()->string(), name->string()});
}

} // namespace velmara
