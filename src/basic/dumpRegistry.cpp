#include "orbis/factory/basic/registry.hpp"

#include "libut/libut.hpp"
#include "orbis/COSInterface.hpp"

namespace orbis::factory::basic {

void dumpRegistry(COSInterface const* marked)
{
    FooRegistry const& table = registry(); // before anything is printed: it may be refused
    constexpr char const* line = "==========================================================\n";
    utPrintf("%s", line);
    utPrintf(" %15s \t %10s \t %10s\n", "ptr", "external", "internal");
    for (auto const& [object, entry] : table) {
        COSInterface* const host = entry->host;
        utPrintf("%s%15p \t %10d \t %10d \n", host == marked ? "*" : " ", static_cast<void*>(host),
                 host->getExternalReferenceCount(), host->getInternalReferenceCount());
    }
    utPrintf("%s", line);
    utPrintf("\n");
}

} // namespace orbis::factory::basic
