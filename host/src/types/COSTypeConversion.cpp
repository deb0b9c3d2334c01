#include "orbis/COSTypeConversion.hpp"

#include "memory/ThreadCache.hpp"

namespace orbis {

COSTypeConversion::COSTypeConversion()
{
    ++velmara::currentLiveCounts().descriptors;
}
COSTypeConversion::~COSTypeConversion()
{
    --velmara::currentLiveCounts().descriptors;
}

} // namespace orbis
