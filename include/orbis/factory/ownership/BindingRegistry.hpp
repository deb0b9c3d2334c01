#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

/// Native objects and the host objects that represent them, by any native address.
namespace orbis::factory::basic {

/// Maps native addresses to the host objects that represent them, one table per virtual machine. An address always
/// reaches the host as the same host object, until its binding is released or retracted.
///
/// Errors of the host propagate and leave the table unchanged. Threading: on the thread of the virtual machine.
class ORBIS_FACTORY_API BindingRegistry {
public:
    BindingRegistry& operator=(BindingRegistry const&);
    BindingRegistry& operator=(BindingRegistry&&);

    /// Returns a new 1-by-1 array of `className`, owned by the caller, with the host object bound to `object`. If there
    /// is none, one is created and bound, and `created` set to true. For a null `object` the array is 0-by-0. Throws
    /// "orbis_factory:orbis_factory:no_such_class" when the class of a new object is not published.
    static hvArray* announce(void* object, COSNameID const& className);
    static hvArray* announce(void* object, COSNameID const& className, bool& created);       ///< likewise
    static hvArray* announce(void const* object, COSNameID const& className);                ///< likewise
    static hvArray* announce(void const* object, COSNameID const& className, bool& created); ///< likewise

    /// The same, but returns the host object itself; an empty handle for a null `object`.
    static COSInterfacePtr announceInternal(void* object, COSNameID const& className, bool& created);

    /// Records `object` (null allowed) in the host object under construction, element 0 of `constructed`. With `store`
    /// the binding is added to the table, as for handle classes; the objects of value classes have no identity to look
    /// up.
    static void announceForConstructor(void* const object, COSNameID const& className, hvArray* constructed,
                                       bool store);

    /// Returns a new 1-by-1 array, owned by the caller, with a new host object into whose own native object `copy`
    /// copies `source`. Adds no binding.
    static hvArray* announceWithoutStoring(void* source, COSNameID const& className,
                                           void (*copy)(void* destination, void* source));

    /// Returns whether the address is bound.
    static bool contains(void const* const object);

    /// Returns the bound host object, or null. The caller gets no reference, and must add one to keep it.
    static COSInterface* find(void const* const object);

    /// Makes `host` represent `newObject` instead: binds `newObject` to it, unless that is bound already, removes the
    /// binding of `oldObject` if that is to `host`, and releases the share that `host` holds in its previous object. A
    /// binding of `oldObject` to another host object stays.
    static void hijack(void const* const oldObject, void* newObject, COSInterface* host, COSNameID const& className);

    /// Removes a binding without notifying the host object. Returns false when there was none.
    static bool release(void const* const object);

    /// Removes a binding and makes its host object invalid, because the native object is about to be destroyed. Returns
    /// false when there was no binding, and does nothing when no virtual machine is current.
    static bool retract(void const* const object);

private:
    static bool remove(void const* const object);
};

} // namespace orbis::factory::basic

namespace orbis::factory::full {

/// Bindings of `Wrappable` objects: the operations of `basic::BindingRegistry`, by the address of that base. All accept
/// null, for which they do nothing.
class ORBIS_FACTORY_API BindingRegistry {
public:
    BindingRegistry& operator=(BindingRegistry const&);
    BindingRegistry& operator=(BindingRegistry&&);

    /// Returns a new array, owned by the caller, with the host object of `object`, which is created if there is none.
    static hvArray* announce(Wrappable* object, COSNameID const& className);

    /// Binds `object` to the host object under construction, element 0 of `constructed`.
    static void announceForConstructor(Wrappable* object, COSNameID const& className, hvArray* constructed);

    /// Returns the bound host object, without a reference, or null.
    static COSInterface* find(Wrappable* object);

    /// Removes a binding without notifying the host object. Returns false when there was none.
    static bool release(Wrappable* object);

    /// Removes a binding and makes its host object invalid. Returns false when there was none.
    static bool retract(Wrappable* object);
};

} // namespace orbis::factory::full
