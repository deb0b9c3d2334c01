#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"

namespace orbis::factory::impl {

/// Writes one property of the native object behind a host object. Exceptions of native code propagate.
class ORBIS_FACTORY_API Setter {
public:
    /// The caller keeps `value`. Throws "orbis_factory:orbis_factory:null_self" when a native object is needed and
    /// there is none.
    virtual void setValue(COSInterface* object, COSValue value) const = 0;

    /// The name of the value's host data type; null when it has none.
    virtual char const* dataTypeName() const = 0;
    virtual ~Setter();
};

} // namespace orbis::factory::impl
