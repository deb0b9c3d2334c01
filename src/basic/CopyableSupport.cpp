#include "orbis/factory/ownership/CopyableSupport.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "basic/HostDependents.hpp"

namespace orbis::factory::CopyableSupport {

using basic::FooRegistry;

void addToUnconstructedSet(void const* object)
{
    basic::HvmScoped<FooRegistry>::get().requireDependents().unconstructed.insert(object);
}

bool isInUnconstructedSet(void const* object)
{
    FooRegistry const& table = basic::registry();
    return table.dependents && table.dependents->unconstructed.contains(object);
}

[[gnu::noinline]] void removeFromUnconstructedSet(void const* object)
{
    FooRegistry* const table = basic::HvmScoped<FooRegistry>::find();
    if (!table || !table->dependents || table->dependents->unconstructed.empty())
        return;
    auto& set = table->dependents->unconstructed;
    if (auto const found = set.find(object); found != set.end())
        set.erase(found);
}

} // namespace orbis::factory::CopyableSupport
