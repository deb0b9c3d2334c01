#pragma once

#include "basic/HandleReferences.hpp"
#include "basic/HostShares.hpp"
#include "basic/KeptObjects.hpp"

#include "orbis/COSNameID.hpp"

#include <boost/container/flat_set.hpp>
#include <boost/unordered_map.hpp>

#include <memory>
#include <set>
#include <string>
#include <utility>

namespace orbis::factory::basic {

struct FooRegistry;

/// Debugging data about bindings.
struct BindingHistory {
    /// Records that `object` is about to be bound to `host` in `table`. Throws `std::bad_alloc`.
    [[gnu::noinline]] void remember(FooRegistry const& table, void const* object, COSInterface* host,
                                    COSNameID const& className);

    /// Records that the binding of `object` was erased.
    [[gnu::noinline]] void forget(void const* object) noexcept;

    /// Reports the binding of `object` as a leak.
    void report(void const* object) const noexcept;

    /// The class as which each address is bound.
    boost::unordered_map<void const*, std::string> classNames;

    /// Host objects that represent a native object without being bound to it: the binding was released, or the address
    /// had one already.
    std::set<std::pair<COSInterface const*, void const*>> unbound;
};

/// What the library knows of the objects of one virtual machine, besides their bindings.
struct HostDependents {
    /// Whether nothing depends on any host object.
    bool empty() const noexcept { return handles.empty() && shares.empty() && superseded.empty() && !history; }

    /// Call after erasing the binding of `object` to `host`. Releases the references of handles for it, which may
    /// destroy objects.
    void forgetBinding(void const* object, COSInterface* host) noexcept
    {
        if (history)
            history->forget(object);
        if (!handles.empty())
            handles.release(host, object);
    }

    /// Removes everything that depends on `host`, including what `table` still binds to it. Foreign code may run.
    [[gnu::noinline]] void forgetHost(FooRegistry& table, COSInterface* host) noexcept;

    HandleReferences handles;
    HostShares shares;
    KeptForNative keptForNative;

    /// Superseded bindings: addresses bound to a host object that has come to record another one.
    std::set<std::pair<COSInterface const*, void const*>> superseded;

    /// The unconstructed set. A sorted array, as only few objects are under construction at a time.
    boost::container::flat_set<void const*> unconstructed;

    std::unique_ptr<BindingHistory> history; ///< only in a virtual machine that reports leaks
};

} // namespace orbis::factory::basic
