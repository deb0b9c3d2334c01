#include "basic/HostShares.hpp"

#include "orbis/factory/detail/bindings/hostShares.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "basic/HostDependents.hpp"

#include "orbis/objectArrays.hpp"

#include <algorithm>
#include <utility>

namespace orbis::factory::basic {

// Both functions release a share only after updating the table: that may destroy a native object, whose destructor may
// call them again.

void HostShares::give(COSInterface* host, Share share)
{
    Share last = std::monostate();
    auto const [place, isNew] = shares_.try_emplace(host);
    try {
        if (auto const* const part = std::get_if<PartOf>(&share))
            parts_.emplace(part->whole, host);
    } catch (...) {
        if (isNew)
            shares_.erase(place);
        throw;
    }
    if (auto const* const part = std::get_if<PartOf>(&place->second))
        erasePart(part->whole, host);
    last = std::exchange(place->second, std::move(share));
}

HostShares::Share const* HostShares::find(COSInterface const* host) const noexcept
{
    auto const found = shares_.find(host);
    return found == shares_.end() ? nullptr : &found->second;
}

bool HostShares::drop(COSInterface const* host) noexcept
{
    auto const found = shares_.find(host);
    if (found == shares_.end())
        return false;
    if (auto const* const part = std::get_if<PartOf>(&found->second))
        erasePart(part->whole, host);
    Share const last = std::move(found->second);
    shares_.erase(found);
    return true;
}

void HostShares::invalidateParts(COSInterface const* whole) noexcept
{
    for (auto part = parts_.find(whole); part != parts_.end(); part = parts_.find(whole))
        COSInterfacePtr(part->second)->setValid(false); // drops its share, and so removes it
}

COSInterface* HostShares::findPart(COSInterface const* whole, COSNameID const& className, void const* native) const
{
    auto const [first, last] = parts_.equal_range(whole);
    auto const found =
        std::find_if(first, last, [&](auto const& part) { return part.second->getNativeObject(className) == native; });
    return found == last ? nullptr : found->second;
}

void HostShares::erasePart(COSInterface const* whole, COSInterface const* part) noexcept
{
    auto const [first, last] = parts_.equal_range(whole);
    parts_.erase(std::find_if(first, last, [=](auto const& entry) { return entry.second == part; }));
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
