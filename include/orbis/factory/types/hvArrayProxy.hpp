#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory {

/// A host array, unconverted, for native functions that handle arrays themselves. Null is allowed. It owns nothing:
///  - an argument belongs to the host, and is valid during the call;
///  - a result by value is either a new array, whose ownership passes to the host, or one of the arguments;
///  - a result by reference, and data that is read, is an array that native code keeps.
///
/// To keep arrays, and to return kept ones by value, use `hvArrayReferenceCountedProxy`.
class ORBIS_FACTORY_API hvArrayProxy {
public:
    hvArrayProxy(hvArray* array); ///< takes no ownership

    /// Creates a 1-by-1 array that holds the object; the caller owns the array. Null for a null handle.
    hvArrayProxy(COSInterfacePtr const& object);
    hvArrayProxy(hvArrayProxy const&);
    hvArrayProxy& operator=(hvArrayProxy const&);

    hvArray* operator()() const; ///< the array, or null

    /// The object in an object array of one element; a null handle for any other array.
    operator COSInterfacePtr() const;

private:
    hvArray* array_;
};

} // namespace orbis::factory
