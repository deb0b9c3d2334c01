#pragma once

#include "system/Object.hpp"

namespace velmara {

[[noreturn]] void refuseObject(Object const& object);

/// Throws "VELMARA:object:invalid" or "VELMARA:object:otherVirtualMachine" for an object that cannot be used.
inline void requireUsable(HvmState const& machine, Object const& object)
{
    if (!object.isValid() || object.machine() != &machine)
        refuseObject(object);
}

} // namespace velmara
