#include "orbis/factory/CopyableSupport.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"
#include "orbis/factory/basic/registry.hpp"

#include <boost/container/flat_set.hpp>

namespace orbis::factory::CopyableSupport {

namespace {

// A sorted array: it holds the few objects that are between their creation and their binding.
struct UnconstructedSet {
    UnconstructedSet() { basic::registry().unconstructed = &objects; }
    UnconstructedSet(UnconstructedSet const&) = delete;
    UnconstructedSet& operator=(UnconstructedSet const&) = delete;

    ~UnconstructedSet()
    {
        if (auto* const table = basic::HvmScoped<basic::FooRegistry>::find())
            table->unconstructed = nullptr;
    }

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
    if (auto* const set = basic::HvmScoped<UnconstructedSet>::find())
        set->objects.erase(object);
}

} // namespace orbis::factory::CopyableSupport
