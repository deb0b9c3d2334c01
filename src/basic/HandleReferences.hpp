#pragma once

#include "orbis/COSInterface.hpp"

#include <boost/unordered_map.hpp>

#include <set>

namespace orbis::factory::basic {

/// One reference that a handle holds on a host object, for the binding by which it found that.
struct HandleReference {
    COSInterface* host;
    void const* bound;  ///< the address that is bound to `host`
    void const* target; ///< what the handle refers to: the same object, maybe under another address
    void const* handle;
};

/// The references that handles hold on host objects of one virtual machine. Handles are known by their addresses. A
/// reference lasts as long as its binding at most. Nothing but `add` needs memory.
class HandleReferences {
public:
    /// For a handle that holds nothing. The caller adds the reference to the host object. Throws `std::bad_alloc`.
    void add(HandleReference const& reference);

    /// What the handle holds, or null.
    HandleReference const* find(void const* handle) const noexcept;

    /// Forgets the reference; the caller releases it.
    void remove(void const* handle) noexcept;

    /// Forgets the handle, and keeps its reference until `releaseDeferred`.
    void defer(void const* handle) noexcept;

    bool empty() const noexcept { return held_.empty() && deferred_.empty(); }

    /// Releases the references on `host` that were taken for its binding to `bound` (null for any): the handles could
    /// not find it any more. Objects may end with the last of them.
    void release(COSInterface* host, void const* bound) noexcept;

    /// Releases what handles have left.
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
    boost::unordered_map<void const*, References::iterator> byHandle_; ///< of those that are held
};

} // namespace orbis::factory::basic
