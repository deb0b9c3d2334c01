#include "orbis/COSDataType.hpp"

#include "memory/ThreadCache.hpp"

namespace orbis {

COSDataType::COSDataType()
{
    ++velmara::currentLiveCounts().descriptors;
}
COSDataType::~COSDataType()
{
    --velmara::currentLiveCounts().descriptors;
}

char const* COSDataType::getDescription() const
{
    return "";
}
char const* COSDataType::getDetailedDescription() const
{
    return getDescription();
}
char const* COSDataType::getPossibleValuesDescription() const
{
    return "";
}
bool COSDataType::isPossibleValuesFinite() const
{
    return false;
}
Enumeration<COSValue> COSDataType::getPossibleValues() const
{
    return {};
}
COSValue COSDataType::getDefaultValue() const
{
    return {};
}
bool COSDataType::checkValue(COSValue, bool) const
{
    return true;
}
COSValue COSDataType::copyInternal(COSValue value) const
{
    return copyValue(value);
}
void COSDataType::destroyInternal(COSValue value) const
{
    releaseValue(value);
}
std::uint32_t COSDataType::getHashCode(COSValue const&) const
{
    return 0;
}
bool COSDataType::canContainInterfaces() const
{
    return false;
}
void COSDataType::getReference()
{
    ++references_;
}

void COSDataType::releaseReference()
{
    if (--references_ <= 0)
        delete this;
}

Enumeration<COSInterface*> COSDataType::getInterfaces(COSValue) const
{
    return {};
}
int COSDataType::getSaveFormat() const
{
    return 0;
}
bool COSDataType::isVELMARAArrayType() const
{
    return false;
}

} // namespace orbis
