#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

namespace orbis::factory::basic {

/// Ties native addresses to the host objects that stand for them, one table per host virtual machine. The same
/// address always reaches the host as the same host object, until it is released or retracted.
///
/// Errors of the host pass through and leave the table as it was. Threading: on the thread of the virtual machine.
class ORBIS_FACTORY_API BindingRegistry {
public:
    BindingRegistry& operator=(BindingRegistry const&);
    BindingRegistry& operator=(BindingRegistry&&);

    /// A new 1-by-1 array of `className` with the host object bound to `object`; the object is made and bound when
    /// there is none (`created` tells). A null `object` gives an empty 0-by-0 array. The caller owns the array.
    /// Throws "orbis_factory:orbis_factory:no_such_class" when a new object's class is not published.
    static hvArray* announce(void* object, COSNameID const& className);
    static hvArray* announce(void* object, COSNameID const& className, bool& created);
    static hvArray* announce(void const* object, COSNameID const& className);
    static hvArray* announce(void const* object, COSNameID const& className, bool& created);

    /// The same for callers that need the host object itself; an empty handle for a null `object`.
    static COSInterfacePtr announceInternal(void* object, COSNameID const& className, bool& created);

    /// Binds `object` (null allowed) to the host object under construction, element 0 of `constructed`. With
    /// `store` the binding is remembered, as handle classes need it; values have no identity to remember.
    static void announceForConstructor(void* const object, COSNameID const& className, hvArray* constructed,
                                       bool store);

    /// A new 1-by-1 array with a new host object, whose own native object `copy` fills from `source`. Remembers
    /// no binding. The caller owns the array.
    static hvArray* announceWithoutStoring(void* source, COSNameID const& className,
                                           void (*copy)(void* destination, void* source));

    static bool contains(void const* const object);

    /// The bound host object, or null. No reference comes with it: who keeps it takes one.
    static COSInterface* find(void const* const object);

    /// Binds `host` to `newObject` and takes the binding of `oldObject` over when that is bound to the same host
    /// object. A binding of `oldObject` to another host object stays. An address that is bound keeps its entry.
    static void hijack(void const* const oldObject, void* newObject, COSInterface* host, COSNameID const& className);

    /// Forgets a binding; the host object is told nothing. False when there was none.
    static bool release(void const* const object);

    /// Forgets a binding and makes its host object invalid: the native object is going away. False when there was
    /// none, and without touching anything when no virtual machine is current.
    static bool retract(void const* const object);

private:
    static bool remove(void const* const object);
};

} // namespace orbis::factory::basic

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
