#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"

namespace orbis::factory::impl {

/// Writes one property of the native object behind a host object. Errors of the native code pass through.
class ORBIS_FACTORY_API Setter {
public:
    /// `value` stays the caller's. Throws "orbis_factory:orbis_factory:null_self" when there is no native object.
    virtual void setValue(COSInterface* object, COSValue value) const = 0;

    /// The host data type of the value; null when it has none.
    virtual char const* dataTypeName() const = 0;
    virtual ~Setter();
};

} // namespace orbis::factory::impl
