#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/ownership/RegistryEntry.hpp"

#include "host_extensions/ObjectObserver.hpp"
#include "orbis/COSNameID.hpp"

#include <boost/unordered_map.hpp>

#include <memory>

namespace orbis::factory::basic {

struct BindingHistory;
struct HostDependents;

/// The binding table of one virtual machine: maps native addresses to entries, which the table owns. Code that erases a
/// mapping by itself must destroy its entry.
struct FooRegistry : boost::unordered_map<void const*, RegistryEntry*> {
    FooRegistry();
    FooRegistry(FooRegistry const&) = delete;
    FooRegistry& operator=(FooRegistry const&) = delete;
    ~FooRegistry();

    /// True when `object` has a binding to `host`.
    bool isBoundTo(void const* object, COSInterface const* host) const noexcept;

    /// Adds an entry for `object`, unless it has one. Returns false if that is to another host object. The caller must
    /// hold `host`. Throws `std::bad_alloc`.
    bool bind(void* object, COSInterface* host, COSNameID const& className);

    /// The same (no entry for a null `object`), before `object` replaces `previous` (null allowed) as what `host`
    /// records. A binding of `previous` to `host` becomes superseded: it is removed when `host` becomes invalid or is
    /// destroyed. Throws `std::bad_alloc`.
    void bindInPlaceOf(void const* previous, void* object, COSInterface* host, COSNameID const& className);

    /// Makes `host` record `object` (null allowed). On failure removes the binding that was just added for it, and
    /// rethrows.
    void record(COSInterface* host, COSNameID const& className, void* object);

    /// Removes the binding of `object` to `host` (null: to any host object), and releases the references that handles
    /// hold for it. Returns whether there was one.
    bool unbind(void const* object, COSInterface const* host) noexcept;

    /// The same, but handles keep their references: for a host object that becomes invalid, which releases all of them.
    bool erase(void const* object, COSInterface const* host) noexcept;

    /// Returns `dependents`, created on first use. Throws `std::bad_alloc`.
    HostDependents& requireDependents();

    /// Other data about objects; null until there is any.
    std::unique_ptr<HostDependents> dependents;

    /// Null unless the virtual machine reports leaks.
    BindingHistory* history() const noexcept;

private:
    class Observer final : public host_extensions::ObjectObserver {
    public:
        explicit Observer(FooRegistry& table) : table_(table) {}
        void nativeForgotten(COSInterface* host, void const* native, bool isDestroyed) noexcept override;
        void objectGone(COSInterface* host) noexcept override;
        void callBoundary() noexcept override;

    private:
        FooRegistry& table_;
    };

    bool bindFirst(void* object, COSInterface* host);
    bool take(void const* object, COSInterface const* host, COSInterface*& bound) noexcept;
    void putBack(node_type mapping) noexcept;
    void unbindUnrecorded(COSInterface const* host, COSNameID const& className, void const* object);

    /// The mapping erased last, with its entry, for reuse: creating and destroying one object at a time allocates
    /// nothing.
    node_type spare_;
    Observer observer_;
};

/// Returns the table of the current virtual machine, created on first use. Throws the host's error when none is
/// current. Threading: on the thread of the virtual machine.
ORBIS_FACTORY_API FooRegistry& registry();

/// Prints the current virtual machine's table to the host's console, with a star beside the row of `marked`.
ORBIS_FACTORY_API void dumpRegistry(COSInterface const* marked);

} // namespace orbis::factory::basic
