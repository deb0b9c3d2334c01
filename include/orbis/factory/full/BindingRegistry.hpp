#pragma once

#include "orbis/factory/export.hpp"
#include "orbis/factory/full/Wrappable.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSNameID.hpp"

namespace orbis::factory::full {

/// The bindings of `Wrappable` objects: the operations of `basic::BindingRegistry` by the address of that base. Null
/// is no object everywhere.
class ORBIS_FACTORY_API BindingRegistry {
public:
    BindingRegistry& operator=(BindingRegistry const&);
    BindingRegistry& operator=(BindingRegistry&&);

    /// A new array with the host object of `object`, which is made when there is none; the caller's.
    static hvArray* announce(Wrappable* object, COSNameID const& className);

    /// Binds `object` to the host object under construction, element 0 of `constructed`, and remembers it.
    static void announceForConstructor(Wrappable* object, COSNameID const& className, hvArray* constructed);

    /// The bound host object, without a reference, or null.
    static COSInterface* find(Wrappable* object);

    /// Forgets a binding; the host object is told nothing. False when there was none.
    static bool release(Wrappable* object);

    /// Forgets a binding and makes its host object invalid. False when there was none.
    static bool retract(Wrappable* object);
};

} // namespace orbis::factory::full
