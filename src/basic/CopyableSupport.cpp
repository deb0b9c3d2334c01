#include "orbis/factory/CopyableSupport.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"

#include <boost/container/flat_set.hpp>

namespace orbis::factory::CopyableSupport {

namespace {

// A sorted array: it holds the few objects that are between their creation and their binding.
struct UnconstructedSet {
    boost::container::flat_set<void const*> objects;
};

boost::container::flat_set<void const*>& objects()
{
    return basic::HvmScoped<UnconstructedSet>::get().objects;
}

} // namespace

void addToUnconstructedSet(void const* object)
{
    objects().insert(object);
}

bool isInUnconstructedSet(void const* object)
{
    return objects().contains(object);
}

void removeFromUnconstructedSet(void const* object)
{
    auto* const set = basic::HvmScoped<UnconstructedSet>::find();
    if (set && !set->objects.empty())
        set->objects.erase(object);
}

} // namespace orbis::factory::CopyableSupport
