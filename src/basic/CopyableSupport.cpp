#include "orbis/factory/CopyableSupport.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

namespace orbis::factory::CopyableSupport {

void addToUnconstructedSet(void const* object)
{
    basic::registry().unconstructed.insert(object);
}

bool isInUnconstructedSet(void const* object)
{
    return basic::registry().unconstructed.contains(object);
}

void removeFromUnconstructedSet(void const* object)
{
    if (auto* const table = basic::HvmScoped<basic::FooRegistry>::find())
        table->unconstructed.erase(object);
}

} // namespace orbis::factory::CopyableSupport
