#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/Enumeration.hpp"

namespace orbis::factory::impl {

/// Reads one property of the native object behind a host object. Exceptions of native code propagate.
class ORBIS_FACTORY_API Getter {
public:
    /// Returns the value, which the caller releases with `releaseValue`. Throws "orbis_factory:orbis_factory:null_self"
    /// when a native object is needed and there is none.
    virtual COSValue getValue(COSInterface* object) const = 0;

    /// The name of the value's host data type; null when it has none.
    virtual char const* dataTypeName() const = 0;
    virtual ~Getter();

    /// Calls the property's release routine, if it has one, for a value that `getValue` returned.
    virtual void releaseValue(COSInterface* object, COSValue value) const = 0;

    /// The host objects that the current value refers to.
    virtual Enumeration<COSInterface*> getInterfaces(COSInterface* object) const = 0;

    /// Returns whether values of the property's type can refer to host objects.
    virtual bool canContainInterfaces() const = 0;
};

} // namespace orbis::factory::impl
