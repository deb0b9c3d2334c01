#include "orbis/COSNameID.hpp"

#include "values/LiveCounters.hpp"
#include "values/NameTable.hpp"

namespace orbis {

COSNameID::COSNameID(char const* name) : name_(velmara::internInline(name ? name : ""))
{
    ++velmara::liveCountsOfThisThread().heldNames;
}

COSNameID::COSNameID(COSNameID const& other) : name_(other.name_)
{
    ++velmara::liveCountsOfThisThread().heldNames;
}

COSNameID& COSNameID::operator=(COSNameID const&) = default;

COSNameID::~COSNameID()
{
    --velmara::liveCountsOfThisThread().heldNames;
}

COSNameID::operator COSString() const
{
    return COSString(name_->text);
}

} // namespace orbis
