#pragma once

#include "orbis/factory/base/export.hpp"

/// Base classes for native objects that tell the host of their end, or that both sides share.
namespace orbis::factory::full {

/// Base of native classes that retract themselves: when an object is destroyed, its binding is removed and its host
/// object becomes invalid. Objects are bound by the address of this base.
///
/// Bindings are not copied: a copy is unbound until it is passed to the host. Threading: on the thread of the virtual
/// machine in which the object is bound; the destructor does nothing when no virtual machine is current.
class ORBIS_FACTORY_API Wrappable {
public:
    Wrappable();
    Wrappable(Wrappable const&);
    Wrappable& operator=(Wrappable const&);

    /// Retracts the object, unless its binding was released before. An exception of the host terminates the program.
    virtual ~Wrappable();
};

} // namespace orbis::factory::full
