#include "orbis/COSClassInfo.hpp"

#include "memory/ThreadCache.hpp"
#include "memory/allocate.hpp"

#include <cstdlib>

namespace orbis {

void* COSClassInfo::operator new(std::size_t size)
{
    return velmara::allocate(size);
}

void COSClassInfo::operator delete(void* storage)
{
    std::free(storage);
}

COSClassInfo::COSClassInfo()
{
    ++velmara::currentLiveCounts().classInfos;
}
COSClassInfo::~COSClassInfo()
{
    --velmara::currentLiveCounts().classInfos;
}

char const* COSClassInfo::getDescription() const
{
    return "";
}
char const* COSClassInfo::getDetailedDescription() const
{
    return getDescription();
}
ClassAccess COSClassInfo::getAccess() const
{
    return ClassAccess::Public;
}
void COSClassInfo::updateInstance(void*) {}
bool COSClassInfo::slot10Flag() const
{
    return false;
}
bool COSClassInfo::isHidden() const
{
    return false;
}
bool COSClassInfo::isFullNameDisplayed() const
{
    return true;
}
bool COSClassInfo::isPropertyNameReservedByThisClass(char const*) const
{
    return false;
}
bool COSClassInfo::canOtherClassContainThisClass(COSNameID) const
{
    return true;
}
bool COSClassInfo::canThisClassContainOtherClass(COSNameID) const
{
    return true;
}
bool COSClassInfo::isHandleCompatible() const
{
    return false;
}
bool COSClassInfo::isEnumeration() const
{
    return false;
}
MemberAccess COSClassInfo::getConnectAccess() const
{
    return MemberAccess::Public;
}
COSConnectivity COSClassInfo::getConnectivity() const
{
    return COSConnectivity::None;
}
bool COSClassInfo::areChildrenSaved() const
{
    return false;
}
bool COSClassInfo::isAbstract() const
{
    return false;
}
bool COSClassInfo::useClassDefaultsOnLoad() const
{
    return false;
}
bool COSClassInfo::isSealed() const
{
    return false;
}
bool COSClassInfo::isPropertyTruncationAllowed() const
{
    return false;
}
bool COSClassInfo::isConstructedOnLoad() const
{
    return false;
}
bool COSClassInfo::arePropertiesCaseInsensitive() const
{
    return false;
}
bool COSClassInfo::isInstanceLeaf() const
{
    return true;
}
bool COSClassInfo::isDestructible() const
{
    return true;
}
bool COSClassInfo::isLocked() const
{
    return true;
}
bool COSClassInfo::attemptToLoadProperty(char const*)
{
    return false;
}
bool COSClassInfo::attemptToLoadMethod(char const*)
{
    return false;
}
bool COSClassInfo::attemptToLoadEvent(char const*)
{
    return false;
}
void COSClassInfo::instanceLoaded(COSInterfacePtr, COSLoadInfo const*) {}
bool COSClassInfo::customSave(COSInterfacePtr, COSValue&, COSDataTypePtr&) const
{
    return false;
}
bool COSClassInfo::customLoad(COSInterfacePtr&, COSValue, COSDataTypePtr) const
{
    return false;
}
COSModule* COSClassInfo::getModule() const
{
    return nullptr;
}
bool COSClassInfo::areClassFunctionsAllowed() const
{
    return true;
}
bool COSClassInfo::areExtensionMethodsAllowed() const
{
    return false;
}
bool COSClassInfo::usesRootRecords() const
{
    return false;
}
bool COSClassInfo::doEventsHaveSeparateNamespace() const
{
    return false;
}
bool COSClassInfo::doesInexactPropertyNameIssueWarning() const
{
    return false;
}
bool COSClassInfo::usesCustomChildrenList() const
{
    return false;
}
COSArrayNature COSClassInfo::getArrayNature() const
{
    return COSArrayNature::Heterogeneous;
}
Enumeration<COSInterface*> COSClassInfo::getChildrenOfInstance(COSInterface*) const
{
    return {};
}
bool COSClassInfo::classIsAbstract() const
{
    return isAbstract();
}
bool COSClassInfo::allowInstanceUpdates() const
{
    return false;
}

} // namespace orbis
