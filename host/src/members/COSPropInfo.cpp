#include "orbis/COSPropInfo.hpp"

#include "memory/ThreadCache.hpp"

namespace orbis {

COSPropInfo::COSPropInfo()
{
    ++velmara::currentLiveCounts().descriptors;
}
COSPropInfo::COSPropInfo(COSPropInfo const&) : COSPropInfo() {}
COSPropInfo& COSPropInfo::operator=(COSPropInfo const&) = default;
COSPropInfo::~COSPropInfo()
{
    --velmara::currentLiveCounts().descriptors;
}

ExtendedMemberAccess COSPropInfo::getExtendedGetAccess() const
{
    return ExtendedMemberAccess::None;
}
ExtendedMemberAccess COSPropInfo::getExtendedSetAccess() const
{
    return ExtendedMemberAccess::None;
}
bool COSPropInfo::hasInternalDefault() const
{
    return false;
}
bool COSPropInfo::isWarnOnCopyError() const
{
    return true;
}
bool COSPropInfo::isNeverAmbiguous() const
{
    return false;
}
double COSPropInfo::getPartialMatchPriority() const
{
    return 0;
}
bool COSPropInfo::isWeakReference() const
{
    return false;
}
bool COSPropInfo::isDestructible() const
{
    return false;
}
Enumeration<COSInterface*> COSPropInfo::getInterfaces(COSClient const*, COSInterface*) const
{
    return {};
}
Enumeration<hvArray_tag*> COSPropInfo::getVXArrays(COSClient const*, COSInterface*) const
{
    return {};
}

} // namespace orbis
