#include "orbis/factory/CopyableSupport.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include <boost/container/flat_set.hpp>

namespace orbis::factory::CopyableSupport {

namespace {

// A sorted array: it holds the few objects that are between their creation and their binding.
struct UnconstructedSet {
    boost::container::flat_set<void const*> objects;
    bool& isAny = basic::registry().isAnyUnconstructed; // of a table that was there before, and so is destroyed later
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

void removeFromUnconstructedSet(void const* object)
{
    auto* const set = basic::HvmScoped<UnconstructedSet>::find();
    if (!set || !set->isAny)
        return;
    set->objects.erase(object);
    set->isAny = !set->objects.empty();
}

} // namespace orbis::factory::CopyableSupport
