#pragma once

#include "orbis/factory/detail/objects/NamedClass.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

namespace orbis::factory {

/// Called before native code destroys an object that scripts may have, other than by a `std::unique_ptr` that took it:
/// the host object becomes invalid, and those of the parts that it gave. Does nothing for null, and for an object that
/// scripts do not have. Returns whether they had it. Throws nothing. Threading: on the thread of the virtual machine.
///
///     retract(node);
///     document.DeleteNode(node);
template <NamedType T>
bool retract(T const* object)
{
    return basic::BindingRegistry::retract(detail::toBound(detail::namedClassOf<T>(), const_cast<T*>(object)));
}

} // namespace orbis::factory
