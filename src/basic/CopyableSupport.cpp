#include "orbis/factory/ownership/CopyableSupport.hpp"

#include "orbis/factory/ownership/FooRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include <boost/container/flat_set.hpp>

namespace orbis::factory::CopyableSupport {

namespace {

// A sorted array, as only few objects are under construction at a time.
struct UnconstructedSet {
    boost::container::flat_set<void const*> objects;
    bool& isAny = basic::registry().isAnyUnconstructed; // the table is created first, and so destroyed later
};

UnconstructedSet& unconstructed()
{
    return basic::HvmScoped<UnconstructedSet>::get();
}

} // namespace

void addToUnconstructedSet(void const* object)
{
    UnconstructedSet& set = unconstructed();
    set.objects.insert(object);
    set.isAny = true;
}

bool isInUnconstructedSet(void const* object)
{
    return unconstructed().objects.contains(object);
}

[[gnu::noinline]] void removeFromUnconstructedSet(void const* object)
{
    auto* const set = basic::HvmScoped<UnconstructedSet>::find();
    if (!set || !set->isAny)
        return;
    set->objects.erase(object);
    set->isAny = !set->objects.empty();
}

} // namespace orbis::factory::CopyableSupport
