#pragma once

#include "orbis/COSInterface.hpp"

#include <boost/unordered_map.hpp>

#include <set>
#include <utility>

namespace orbis::factory::basic {

/// The references that handles hold on host objects of one virtual machine. Handles are known by their addresses.
class HandleReferences {
public:
    using Held = std::set<std::pair<COSInterface*, void const*>>;

    /// For a handle that holds nothing. Throws `std::bad_alloc`.
    void enter(COSInterface* host, void const* handle);

    /// The host object that the handle holds, or null.
    COSInterface* heldBy(void const* handle) const noexcept;

    void leave(void const* handle) noexcept;

    bool empty() const { return byHost_.empty(); }

    /// Each with the handle that holds it, sorted.
    Held const& all() const { return byHost_; }

    /// Gives back the references on `host`: its binding is gone, through which the handles would find it. Objects may
    /// end with the last of them.
    void giveBack(COSInterface* host);

private:
    Held byHost_;
    boost::unordered_map<void const*, COSInterface*> byHandle_;
};

} // namespace orbis::factory::basic
