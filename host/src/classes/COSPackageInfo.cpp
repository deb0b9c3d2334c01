#include "orbis/COSPackageInfo.hpp"

#include "memory/ThreadCache.hpp"
#include "memory/allocate.hpp"

#include <cstdlib>

namespace orbis {

void* COSPackageInfo::operator new(std::size_t size)
{
    return velmara::allocate(size);
}

void COSPackageInfo::operator delete(void* storage)
{
    std::free(storage);
}

COSPackageInfo::COSPackageInfo()
{
    ++velmara::currentLiveCounts().descriptors;
}
COSPackageInfo::~COSPackageInfo()
{
    --velmara::currentLiveCounts().descriptors;
}

char const* COSPackageInfo::getDescription() const
{
    return "";
}
char const* COSPackageInfo::getDetailedDescription() const
{
    return getDescription();
}
bool COSPackageInfo::attemptToLoadSubPackage(char const*)
{
    return false;
}
bool COSPackageInfo::attemptToLoadClass(char const*)
{
    return false;
}
bool COSPackageInfo::attemptToLoadFunction(char const*)
{
    return false;
}
bool COSPackageInfo::attemptToLoadType(char const*)
{
    return false;
}
COSMethodSelector* COSPackageInfo::getMethodSelector() const
{
    return nullptr;
}
bool COSPackageInfo::isDestructible() const
{
    return true;
}
bool COSPackageInfo::isLocked() const
{
    return true;
}
char16_t const* COSPackageInfo::getH1Line() const
{
    return nullptr;
}
char16_t const* COSPackageInfo::getHelpText() const
{
    return nullptr;
}

} // namespace orbis
