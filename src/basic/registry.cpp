#include "orbis/factory/basic/registry.hpp"

#include "basic/HvmScoped.hpp"

#include "libut/libut.hpp"
#include "orbis/COSInterface.hpp"

namespace orbis::factory::basic {

FooRegistry::~FooRegistry()
{
    // Left entries are reclaimed without a word to their host objects, which may be gone.
    for (auto const& [object, entry] : *this)
        delete entry;
}

FooRegistry& registry()
{
    return HvmScoped<FooRegistry>::get();
}

void dumpRegistry(COSInterface const* marked)
{
    constexpr char const* line = "==========================================================\n";
    utPrintf("%s", line);
    utPrintf(" %15s \t %10s \t %10s\n", "ptr", "external", "internal");
    for (auto const& [object, entry] : registry()) {
        COSInterface* const host = entry->host;
        utPrintf("%s%15p \t %10d \t %10d \n", host == marked ? "*" : " ", static_cast<void*>(host),
                 host->getExternalReferenceCount(), host->getInternalReferenceCount());
    }
    utPrintf("%s", line);
    utPrintf("\n");
}

} // namespace orbis::factory::basic
