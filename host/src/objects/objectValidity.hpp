#pragma once

#include "objects/Object.hpp"

#include <span>

namespace velmara {

[[noreturn]] void refuseObject(Object const& object);

/// Throws "VELMARA:object:invalid" or "VELMARA:object:otherVirtualMachine" for an object that cannot be used.
inline void requireUsable(Machine const& machine, Object const& object)
{
    if (!object.isValid() || object.machine() != &machine)
        refuseObject(object);
}

/// The same for each object that is there.
inline void checkObjects(Machine const& machine, std::span<Object* const> objects)
{
    for (Object const* const object : objects)
        if (object)
            requireUsable(machine, *object);
}

} // namespace velmara
