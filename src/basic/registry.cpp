#include "orbis/factory/basic/registry.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"

#include "libut/libut.hpp"
#include "orbis/COSInterface.hpp"

#include <memory>
#include <utility>

namespace orbis::factory::basic {

FooRegistry::~FooRegistry()
{
    // Left entries are reclaimed without a word to their host objects, which may be gone.
    for (auto const& [object, entry] : *this)
        delete entry;
    if (spare_)
        delete spare_.mapped();
}

void FooRegistry::bind(void* object, COSInterface* host)
{
    if (spare_) {
        spare_.key() = object;
        *spare_.mapped() = RegistryEntry(object, host);
        auto result = insert(std::move(spare_));
        spare_ = std::move(result.node);
        return;
    }
    auto entry = std::make_unique<RegistryEntry>(object, host);
    if (emplace(object, entry.get()).second)
        static_cast<void>(entry.release());
}

void FooRegistry::unbind(iterator mapping)
{
    std::unique_ptr<RegistryEntry> const entry(spare_ ? mapping->second : nullptr);
    if (entry)
        erase(mapping);
    else
        spare_ = extract(mapping);
}

void FooRegistry::giveBackHandles(COSInterface* host)
{
    auto const found = handleCounts.find(host);
    if (found == handleCounts.end())
        return;
    int const count = found->second;
    handleCounts.erase(found); // first: the last reference to go may end other objects, and come back here
    for (int i = 0; i < count; ++i)
        host->removeReference();
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
