#pragma once

#include "orbis/COSInterface.hpp"

#include <boost/unordered_map.hpp>

#include <set>

namespace orbis::factory::basic {

/// A reference that a handle holds on a host object, for the binding through which it was found.
struct HandleReference {
    COSInterface* host;
    void const* bound;  ///< the address that is bound to `host`
    void const* target; ///< what the handle refers to: the same object, possibly at another address
    void const* handle;
};

/// The references that handles hold on host objects of one virtual machine. Handles are identified by address. A
/// reference is held at most as long as its binding exists. Only `add` allocates.
class HandleReferences {
public:
    /// Adds a reference for a handle that holds nothing. The caller adds it to the host object. Throws
    /// `std::bad_alloc`.
    void add(HandleReference const& reference);

    /// The reference of the handle, or null.
    HandleReference const* find(void const* handle) const noexcept;

    /// Removes the reference, which the caller releases.
    void remove(void const* handle) noexcept;

    /// Removes the handle, and holds its reference until `releaseDeferred`.
    void defer(void const* handle) noexcept;

    bool empty() const noexcept { return held_.empty() && deferred_.empty(); }

    /// Releases the references on `host` that were taken for its binding to `bound` (null: to any), because the handles
    /// can no longer find it. This may destroy objects.
    [[gnu::noinline]] void release(COSInterface* host, void const* bound) noexcept;

    /// Releases all deferred references. This may destroy objects.
    void releaseDeferred() noexcept;

    /// Calls `visit` with each reference that a handle holds.
    template <class Visit>
    void forEach(Visit const& visit) const
    {
        for (HandleReference const& reference : held_)
            visit(reference);
    }

private:
    struct ByHost {
        using is_transparent = void;
        bool operator()(HandleReference const& a, HandleReference const& b) const { return a.host < b.host; }
        bool operator()(HandleReference const& a, COSInterface const* b) const { return a.host < b; }
        bool operator()(COSInterface const* a, HandleReference const& b) const { return a < b.host; }
    };
    using References = std::multiset<HandleReference, ByHost>;

    static int erase(References& references, COSInterface const* host, void const* bound,
                     boost::unordered_map<void const*, References::iterator>* byHandle) noexcept;

    References held_;
    References deferred_;
    boost::unordered_map<void const*, References::iterator> byHandle_; ///< index into `held_`
};

} // namespace orbis::factory::basic
