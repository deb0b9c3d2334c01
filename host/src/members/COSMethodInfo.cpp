#include "orbis/COSMethodInfo.hpp"

#include "memory/ThreadCache.hpp"
#include "memory/allocate.hpp"

#include <cstdlib>

namespace orbis {

void* COSMethodInfo::operator new(std::size_t size)
{
    return velmara::allocate(size);
}

void* COSMethodInfo::operator new(std::size_t, void* place)
{
    return place;
}
void COSMethodInfo::operator delete(void* storage)
{
    std::free(storage);
}
void COSMethodInfo::operator delete(void*, void*) {}
// The interface has it without its counterpart.
void COSMethodInfo::operator delete[](void* storage) // NOLINT(misc-new-delete-overloads)
{
    std::free(storage);
}

COSMethodInfo::COSMethodInfo()
{
    ++velmara::currentLiveCounts().descriptors;
}
COSMethodInfo::~COSMethodInfo()
{
    --velmara::currentLiveCounts().descriptors;
}

char const* COSMethodInfo::getDescription() const
{
    return "";
}
char const* COSMethodInfo::getDetailedDescription() const
{
    return getDescription();
}
MemberAccess COSMethodInfo::getMemberAccess()
{
    return MemberAccess::Public;
}
ExtendedMemberAccess COSMethodInfo::getExtendedAccess()
{
    return ExtendedMemberAccess::None;
}
bool COSMethodInfo::isFirstArgDispatch() const
{
    return true;
}
bool COSMethodInfo::isStatic() const
{
    return false;
}
bool COSMethodInfo::isAbstract() const
{
    return false;
}
bool COSMethodInfo::isSealed() const
{
    return false;
}
bool COSMethodInfo::isVisible() const
{
    return true;
}
bool COSMethodInfo::isDestructible() const
{
    return false;
}
bool COSMethodInfo::isLocked() const
{
    return true;
}
bool COSMethodInfo::isExplicit() const
{
    return false;
}
bool COSMethodInfo::doesMethodOverrideAllSignatures() const
{
    return false;
}

} // namespace orbis
