#pragma once

#include "orbis/factory/basic/RegistryEntry.hpp"
#include "orbis/factory/export.hpp"

#include "additions/ObjectObserver.hpp"
#include "orbis/COSNameID.hpp"

#include <boost/unordered_map.hpp>

#include <memory>

namespace orbis::factory::basic {

struct BindingHistory;
struct HostDependents;

/// The binding table of one host virtual machine: native address to an entry that the table owns. Whoever erases
/// a mapping destroys its entry.
struct FooRegistry : boost::unordered_map<void const*, RegistryEntry*> {
    FooRegistry();
    FooRegistry(FooRegistry const&) = delete;
    FooRegistry& operator=(FooRegistry const&) = delete;
    ~FooRegistry();

    bool isBoundTo(void const* object, COSInterface const* host) const noexcept;

    /// Adds a new entry, unless there is one for `object`; false when that is one to another host object. `host` is
    /// held by someone else. Throws `std::bad_alloc`.
    bool bind(void* object, COSInterface* host, COSNameID const& className);

    /// The same before `object` takes the place of `previous` (null allowed) as what `host` records: should that stay
    /// bound, too, it is so until `host` is destroyed. Throws `std::bad_alloc`.
    bool bindInPlaceOf(void const* previous, void* object, COSInterface* host, COSNameID const& className);

    /// Has `host` record `object` (null allowed), which was just bound to it if at all: not any more when that fails.
    void record(COSInterface* host, COSNameID const& className, void* object);

    /// Erases the mapping of `object`, where it is one to `host` (null for any host object), destroys its entry and
    /// releases what handles hold by it. True when there was one.
    bool unbind(void const* object, COSInterface const* host) noexcept;

    /// Likewise, but handles keep what they hold.
    bool erase(void const* object, COSInterface const* host) noexcept;

    /// `dependents`, created on first use. Throws `std::bad_alloc`.
    HostDependents& requireDependents();

    /// What else depends on host objects; null until something does.
    std::unique_ptr<HostDependents> dependents;

    /// Null unless the virtual machine reports leaks.
    BindingHistory* history() const noexcept;

    /// Whether the unconstructed set has something in it, for constructors, which look at this table anyway.
    bool isAnyUnconstructed = false;

private:
    class Observer final : public additions::ObjectObserver {
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

    /// The mapping erased last, entry and all: objects that come and go one after the other take no memory.
    node_type spare_;
    Observer observer_;
};

/// The table of the current virtual machine, made on first use. Throws the host's error when none is current.
/// Threading: on the thread of the virtual machine.
ORBIS_FACTORY_API FooRegistry& registry();

/// Prints the current virtual machine's table to the host's console, with a star at the row of `marked`.
ORBIS_FACTORY_API void dumpRegistry(COSInterface const* marked);

} // namespace orbis::factory::basic
