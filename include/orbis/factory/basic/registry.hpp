#pragma once

#include "orbis/factory/basic/HandleReferences.hpp"
#include "orbis/factory/basic/RegistryEntry.hpp"
#include "orbis/factory/export.hpp"

#include "orbis/COSNameID.hpp"

#include <boost/unordered_map.hpp>

#include <memory>
#include <set>
#include <string>
#include <utility>

namespace orbis::factory::basic {

/// What debugging asks for beside the bindings.
struct BindingHistory {
    /// The classes as which the addresses were bound last.
    boost::unordered_map<void const*, std::string> classNames;

    /// Host objects that stand for a native object though their binding was given up, or the address had one already.
    std::set<std::pair<COSInterface const*, void const*>> unbound;
};

/// The binding table of one host virtual machine: native address to an entry that the table owns. Whoever erases
/// a mapping destroys its entry.
struct FooRegistry : boost::unordered_map<void const*, RegistryEntry*> {
    FooRegistry();
    FooRegistry(FooRegistry const&) = delete;
    FooRegistry& operator=(FooRegistry const&) = delete;
    ~FooRegistry();

    /// Adds a new entry, unless there is one for `object`; false when that is one to another host object. `host` is
    /// held by someone else.
    bool bind(void* object, COSInterface* host, COSNameID const& className);

    /// Erases the mapping of `object`, where it is one to `host` (null for any host object), destroys its entry and
    /// gives back what handles hold. True when there was one.
    bool unbind(void const* object, COSInterface const* host);

    /// Whether the unconstructed set has something in it, for constructors, which look at this table anyway.
    bool isAnyUnconstructed = false;

    HandleReferences handles;
    std::unique_ptr<BindingHistory> history; ///< only in a virtual machine that reports leaks

private:
    bool bindFirst(void* object, COSInterface* host);
    bool isBoundTo(void const* object, COSInterface const* host) const;
    void putBack(node_type mapping) noexcept;
    void remember(void const* object, COSInterface* host, COSNameID const& className);

    /// The mapping erased last, entry and all: objects that come and go one after the other take no memory.
    node_type spare_;
};

/// The table of the current virtual machine, made on first use. Throws the host's error when none is current.
/// Threading: on the thread of the virtual machine.
ORBIS_FACTORY_API FooRegistry& registry();

/// Prints the current virtual machine's table to the host's console, with a star at the row of `marked`.
ORBIS_FACTORY_API void dumpRegistry(COSInterface const* marked);

} // namespace orbis::factory::basic
