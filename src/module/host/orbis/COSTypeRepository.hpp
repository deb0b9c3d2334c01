#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSNameID.hpp"

namespace orbis {

class COSDataType;
class COSTypeConversion;

/// The data types and conversions of the current virtual machine. Adding takes ownership in every case, also
/// when it throws (a name that is taken: "VELMARA:type:duplicate"). Removing what is not there does nothing.
class ORBIS_HOST_API COSTypeRepository {
public:
    static void addGlobalType(COSDataType* type);
    static void removeGlobalType(COSNameID const& name);
    static void addConversion(COSNameID const& from, COSNameID const& to, COSTypeConversion* conversion);
    static void removeConversion(COSNameID const& from, COSNameID const& to);

    /// The registered conversion, the host's own; null when there is none.
    static COSTypeConversion* getConversion(COSNameID const& from, COSNameID const& to);
};

} // namespace orbis
