#pragma once

#include "orbis/factory/base/export.hpp"

namespace orbis::factory::full {

/// Base of native classes whose host objects must not outlive them unnoticed: an object forgets its own binding when
/// it is destroyed, and its host object becomes invalid. Objects are bound by the address of this base.
///
/// A binding is never copied: a copy is unbound until it is announced. Threading: on the thread of the virtual machine
/// in which the object is bound; where none is current the destructor touches nothing.
class ORBIS_FACTORY_API Wrappable {
public:
    Wrappable();
    Wrappable(Wrappable const&);
    Wrappable& operator=(Wrappable const&);

    /// The host is told once, unless the binding was released before. Whatever the host throws ends the program.
    virtual ~Wrappable();
};

} // namespace orbis::factory::full
