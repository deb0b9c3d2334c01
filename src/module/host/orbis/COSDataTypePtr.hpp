#pragma once

#include "orbis_host_export.hpp"

namespace orbis {

class COSDataType;

/// A counted pointer to a data type.
class ORBIS_HOST_API COSDataTypePtr {
public:
    /// The data type of that name in the current virtual machine ("double scalar", a class name, ...); empty when
    /// there is none or `name` is null.
    COSDataTypePtr(char const* name);
    COSDataTypePtr(COSDataTypePtr const&);
    COSDataTypePtr& operator=(COSDataTypePtr const&);
    ~COSDataTypePtr();

    /// The type, null when there is none; valid as long as this.
    operator COSDataType*() const;
    COSDataType* operator->() const; ///< the same

private:
    COSDataType* type_;
};

} // namespace orbis
