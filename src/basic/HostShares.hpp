#pragma once

#include "orbis/COSInterface.hpp"

#include <boost/smart_ptr/shared_ptr.hpp>
#include <boost/unordered_map.hpp>

#include <memory>
#include <variant>

namespace orbis::factory::basic {

/// The shares that host objects of one virtual machine have in shared native objects, each at most one.
class HostShares {
public:
    using Share = std::variant<boost::shared_ptr<void>, std::shared_ptr<void>>;

    /// In place of the share that `host` has. That may end a native object. Throws `std::bad_alloc`.
    void give(COSInterface const* host, Share share);

    bool empty() const noexcept { return shares_.empty(); }
    bool has(COSInterface const* host) const noexcept { return shares_.count(host) != 0; }

    /// Gives the share of `host` up, which may end the native object. False when it has none.
    bool drop(COSInterface const* host) noexcept;

    /// Calls `visit` with each host object that has a share. It is not looked at: it may have ended by mistake.
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
