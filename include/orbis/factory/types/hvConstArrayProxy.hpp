#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory {

/// `hvArrayProxy` for native functions that only read the array.
class ORBIS_FACTORY_API hvConstArrayProxy {
public:
    hvConstArrayProxy(hvArray const* array); ///< takes no ownership

    /// Creates a 1-by-1 array that holds the object; the caller owns the array. Null for a null handle.
    hvConstArrayProxy(COSInterfacePtr const& object);
    hvConstArrayProxy(hvConstArrayProxy const&);
    hvConstArrayProxy& operator=(hvConstArrayProxy const&);

    hvArray const* operator()() const; ///< the array, or null

    /// The object in an object array of one element; a null handle for any other array.
    operator COSInterfacePtr() const;

private:
    hvArray const* array_;
};

} // namespace orbis::factory
