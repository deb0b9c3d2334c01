#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/Enumeration.hpp"

namespace orbis::factory::impl {

/// Reads one property of the native object behind a host object. Errors of the native code pass through.
class ORBIS_FACTORY_API Getter {
public:
    /// The value, which is given back with `releaseValue`. Throws "orbis_factory:orbis_factory:null_self" when there
    /// is no native object and one is needed.
    virtual COSValue getValue(COSInterface* object) const = 0;

    /// The host data type of the value; null when it has none.
    virtual char const* dataTypeName() const = 0;
    virtual ~Getter();

    /// Hands a value back to the release routine of the property, if it has one.
    virtual void releaseValue(COSInterface* object, COSValue value) const = 0;

    /// The host objects that the current value refers to.
    virtual Enumeration<COSInterface*> getInterfaces(COSInterface* object) const = 0;

    /// True when values of the property's type can refer to host objects.
    virtual bool canContainInterfaces() const = 0;
};

} // namespace orbis::factory::impl
