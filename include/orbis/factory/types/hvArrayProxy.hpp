#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory {

/// A host array as it is, for native functions that want no conversion. Null is allowed. It owns nothing: an argument
/// stays the host's, and lives for the call; a result by value is a new array, which it hands over, or an argument as
/// it was given; a result by reference, and data that is read, is an array that native code keeps. To keep arrays, and
/// to return them by value, use `hvArrayReferenceCountedProxy`.
class ORBIS_FACTORY_API hvArrayProxy {
public:
    hvArrayProxy(hvArray* array);

    /// A new 1-by-1 array that holds the object, which is the caller's; null for a null handle.
    hvArrayProxy(COSInterfacePtr const& object);
    hvArrayProxy(hvArrayProxy const&);
    hvArrayProxy& operator=(hvArrayProxy const&);

    hvArray* operator()() const;

    /// The object of an object array of one element; a null handle for everything else.
    operator COSInterfacePtr() const;

private:
    hvArray* array_;
};

} // namespace orbis::factory
