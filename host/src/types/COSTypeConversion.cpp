#include "orbis/COSTypeConversion.hpp"

#include "memory/LiveCounters.hpp"

namespace orbis {

COSTypeConversion::COSTypeConversion()
{
    ++velmara::liveCountsOfThisThread().descriptors;
}
COSTypeConversion::~COSTypeConversion()
{
    --velmara::liveCountsOfThisThread().descriptors;
}

} // namespace orbis
