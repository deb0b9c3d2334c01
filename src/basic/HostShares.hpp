#pragma once

#include "orbis/COSInterface.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

#include <boost/smart_ptr/shared_ptr.hpp>
#include <boost/unordered_map.hpp>

#include <memory>
#include <variant>

namespace orbis::factory::basic {

/// A native object that is a part of another one: the whole's host object, kept alive.
struct PartOf {
    COSInterfacePtr whole;
};

/// What host objects of one virtual machine hold in native objects that they do not own alone, at most one share each.
class HostShares {
public:
    /// Nothing in the object of another owner; a share of a shared object; or the object's whole.
    using Share = std::variant<std::monostate, boost::shared_ptr<void>, std::shared_ptr<void>, PartOf>;

    /// Replaces the share of `host`, which may destroy a native object. Throws `std::bad_alloc`.
    void give(COSInterface* host, Share share);

    /// The share of `host`; null when it has none.
    Share const* find(COSInterface const* host) const noexcept;

    bool empty() const noexcept { return shares_.empty(); }
    bool has(COSInterface const* host) const noexcept { return shares_.count(host) != 0; }

    /// Releases the share of `host`, which may destroy the native object. Returns false when there is none.
    bool drop(COSInterface const* host) noexcept;

    /// Returns the host object of a part of `whole` that records `native` for the class, or null.
    COSInterface* findPart(COSInterface const* whole, COSNameID const& className, void const* native) const;

    /// Makes the host objects of all parts of `whole` invalid. Foreign code may run.
    void invalidateParts(COSInterface const* whole) noexcept;

    /// Calls `visit` with each host object that holds a share. Do not dereference it: for `check`, which looks for
    /// destroyed ones.
    template <class Visit>
    void forEachHost(Visit const& visit) const
    {
        for (auto const& [host, share] : shares_)
            visit(host);
    }

private:
    using Parts = boost::unordered_multimap<COSInterface const*, COSInterface*>;

    void erasePart(COSInterface const* whole, COSInterface const* part) noexcept;

    boost::unordered_map<COSInterface const*, Share> shares_;
    Parts parts_; ///< by their wholes
};

} // namespace orbis::factory::basic
