#include "orbis/factory/detail/hostShares.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"

#include "basic/sharingHosts.hpp"

#include "orbis/objectArrays.hpp"

#include <boost/unordered_map.hpp>

#include <utility>
#include <variant>

namespace orbis::factory::detail {

namespace {

using Share = std::variant<boost::shared_ptr<void>, std::shared_ptr<void>>;

struct HostShares : boost::unordered_map<COSInterface const*, Share> {};

void give(hvArray_tag const* array, Share share)
{
    COSInterface const* const host = omGetArrayElement(array, 0);
    // What it had goes last: it may end a native object, whose destructor may come back here.
    std::swap(basic::HvmScoped<HostShares>::get()[host], share);
}

} // namespace

void shareWithHost(hvArray_tag const* array, boost::shared_ptr<void> share)
{
    give(array, std::move(share));
}

void shareWithHost(hvArray_tag const* array, std::shared_ptr<void> share)
{
    give(array, std::move(share));
}

std::vector<COSInterface const*> sharingHosts()
{
    std::vector<COSInterface const*> hosts;
    if (HostShares const* const shares = basic::HvmScoped<HostShares>::find())
        for (auto const& [host, share] : *shares)
            hosts.push_back(host);
    return hosts;
}

bool hasShare(COSInterface const* host)
{
    HostShares const* const shares = basic::HvmScoped<HostShares>::find();
    return shares && shares->count(host) != 0;
}

bool dropShare(COSInterface const* host)
{
    HostShares* const shares = basic::HvmScoped<HostShares>::find();
    if (!shares || shares->empty())
        return false;
    auto const found = shares->find(host);
    if (found == shares->end())
        return false;
    Share const last = std::move(found->second);
    shares->erase(found);
    return true;
}

} // namespace orbis::factory::detail
