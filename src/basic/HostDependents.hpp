#pragma once

#include "basic/HandleReferences.hpp"
#include "basic/HostShares.hpp"

#include "orbis/COSNameID.hpp"

#include <boost/unordered_map.hpp>

#include <memory>
#include <set>
#include <string>
#include <utility>

namespace orbis::factory::basic {

struct FooRegistry;

/// What debugging asks for beside the bindings.
struct BindingHistory {
    /// Before `object` is bound to `host` in `table`. Throws `std::bad_alloc`.
    void remember(FooRegistry const& table, void const* object, COSInterface* host, COSNameID const& className);

    /// After the binding of `object` was erased.
    void forget(void const* object) noexcept;

    /// Reports the binding of `object` as a leak.
    void report(void const* object) const noexcept;

    /// The classes as which the addresses are bound.
    boost::unordered_map<void const*, std::string> classNames;

    /// Host objects that stand for a native object though their binding was given up, or the address had one already.
    std::set<std::pair<COSInterface const*, void const*>> unbound;
};

/// What depends on the host objects of one virtual machine beside their bindings. It goes with them.
struct HostDependents {
    bool empty() const noexcept { return handles.empty() && shares.empty() && superseded.empty() && !history; }

    /// After the binding of `object` to `host` was erased. Objects may end with what handles hold by it.
    void forgetBinding(void const* object, COSInterface* host) noexcept
    {
        if (history)
            history->forget(object);
        if (!handles.empty())
            handles.release(host, object);
    }

    /// Forgets all that depends on `host`, with what `table` still binds to it. Foreign code may run.
    void forgetHost(FooRegistry& table, COSInterface* host) noexcept;

    HandleReferences handles;
    HostShares shares;

    /// Addresses that are bound to a host object which records another one since.
    std::set<std::pair<COSInterface const*, void const*>> superseded;

    std::unique_ptr<BindingHistory> history; ///< only in a virtual machine that reports leaks
};

} // namespace orbis::factory::basic
