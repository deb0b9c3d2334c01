#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory {

/// `hvArrayProxy` for native functions that only read the array.
class ORBIS_FACTORY_API hvConstArrayProxy {
public:
    hvConstArrayProxy(hvArray const* array);

    /// A new 1-by-1 array that holds the object, which is the caller's; null for a null handle.
    hvConstArrayProxy(COSInterfacePtr const& object);
    hvConstArrayProxy(hvConstArrayProxy const&);
    hvConstArrayProxy& operator=(hvConstArrayProxy const&);

    hvArray const* operator()() const;

    /// The object of an object array of one element; a null handle for everything else.
    operator COSInterfacePtr() const;

private:
    hvArray const* array_;
};

} // namespace orbis::factory
