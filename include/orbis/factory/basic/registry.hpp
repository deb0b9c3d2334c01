#pragma once

#include "orbis/factory/basic/RegistryEntry.hpp"
#include "orbis/factory/export.hpp"

#include <boost/unordered_map.hpp>

namespace orbis::factory::basic {

/// The binding table of one host virtual machine: native address to an entry that the table owns. Whoever erases
/// a mapping destroys its entry.
struct FooRegistry : boost::unordered_map<void const*, RegistryEntry*> {
    FooRegistry() = default;
    FooRegistry(FooRegistry const&) = delete;
    FooRegistry& operator=(FooRegistry const&) = delete;
    ~FooRegistry();
};

/// The table of the current virtual machine, made on first use. Throws the host's error when none is current.
/// Threading: on the thread of the virtual machine.
ORBIS_FACTORY_API FooRegistry& registry();

/// Prints the current virtual machine's table to the host's console, with a star at the row of `marked`.
ORBIS_FACTORY_API void dumpRegistry(COSInterface const* marked);

} // namespace orbis::factory::basic
