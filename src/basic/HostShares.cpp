#include "basic/HostShares.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"
#include "orbis/factory/detail/hostShares.hpp"

#include "basic/HostDependents.hpp"

#include "orbis/objectArrays.hpp"

#include <utility>

namespace orbis::factory::basic {

// What goes, goes when the table is done: it may end a native object, whose destructor may come back here.

void HostShares::give(COSInterface const* host, Share share)
{
    std::swap(shares_[host], share);
}

bool HostShares::drop(COSInterface const* host) noexcept
{
    auto const found = shares_.find(host);
    if (found == shares_.end())
        return false;
    Share const last = std::move(found->second);
    shares_.erase(found);
    return true;
}

} // namespace orbis::factory::basic

namespace orbis::factory::detail {

void shareWithHost(hvArray_tag const* array, boost::shared_ptr<void> share)
{
    basic::registry().requireDependents().shares.give(omGetArrayElement(array, 0), std::move(share));
}

void shareWithHost(hvArray_tag const* array, std::shared_ptr<void> share)
{
    basic::registry().requireDependents().shares.give(omGetArrayElement(array, 0), std::move(share));
}

bool dropShare(COSInterface const* host)
{
    auto* const table = basic::HvmScoped<basic::FooRegistry>::find();
    return table && table->dependents && table->dependents->shares.drop(host);
}

} // namespace orbis::factory::detail
