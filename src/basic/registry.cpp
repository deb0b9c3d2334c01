#include "orbis/factory/basic/registry.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"

#include "basic/addressText.hpp"

#include "additions/additions.hpp"
#include "libut/libut.hpp"
#include "orbis/COSInterface.hpp"

#include <memory>

namespace orbis::factory::basic {

void FooRegistry::reportBound(void const* object) const noexcept
{
    try {
        std::string const text = "the native object " + addressText(object) + " is still bound as ";
        additions::reportLeak((text + history->classNames.at(object)).c_str());
    } catch (...) {
        additions::reportLeak("a native object is still bound");
    }
}

FooRegistry::FooRegistry() : observer_(*this)
{
    if (additions::reportsLeaks())
        history = std::make_unique<BindingHistory>();
    additions::observeObjects(&observer_);
}

FooRegistry::~FooRegistry()
{
    additions::observeObjects(nullptr);
    // Left entries are reclaimed without a word to their host objects, which may be gone.
    for (auto const& [object, entry] : *this) {
        if (history)
            reportBound(object);
        delete entry;
    }
    if (spare_)
        delete spare_.mapped();
}

FooRegistry& registry()
{
    return HvmScoped<FooRegistry>::get();
}

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
