#pragma once

#include "orbis/COSInterface.hpp"

#include <boost/smart_ptr/shared_ptr.hpp>
#include <boost/unordered_map.hpp>

#include <memory>
#include <variant>

namespace orbis::factory::basic {

/// The shares that host objects of one virtual machine hold in shared native objects, at most one each.
class HostShares {
public:
    using Share = std::variant<boost::shared_ptr<void>, std::shared_ptr<void>>;

    /// Replaces the share of `host`, which may destroy a native object. Throws `std::bad_alloc`.
    void give(COSInterface const* host, Share share);

    bool empty() const noexcept { return shares_.empty(); }
    bool has(COSInterface const* host) const noexcept { return shares_.count(host) != 0; }

    /// Releases the share of `host`, which may destroy the native object. Returns false when there is none.
    bool drop(COSInterface const* host) noexcept;

    /// Calls `visit` with each host object that holds a share. Do not dereference it: for `check`, which looks for
    /// destroyed ones.
    template <class Visit>
    void forEachHost(Visit const& visit) const
    {
        for (auto const& [host, share] : shares_)
            visit(host);
    }

private:
    boost::unordered_map<COSInterface const*, Share> shares_;
};

} // namespace orbis::factory::basic
