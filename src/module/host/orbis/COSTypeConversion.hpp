#pragma once

#include "orbis_host_export.hpp"

class hvArray_tag;

namespace orbis {

/// A conversion between two named data types, where the second one's values are host arrays or, for a type whose
/// values are native objects ("unicodeString"), pointers to them in the place of an array: of the pointer nothing but
/// its address is used until it is cast back.
class ORBIS_HOST_API COSTypeConversion {
public:
    COSTypeConversion();
    COSTypeConversion(COSTypeConversion const&) = delete;
    COSTypeConversion& operator=(COSTypeConversion const&) = delete;
    virtual ~COSTypeConversion();

    /// Stores a new array for the data type's `value`, which may be null. The caller owns it.
    virtual void convertToHost(hvArray_tag** out, hvArray_tag* value) = 0;

    /// Stores a new value of the data type for the array `in`, which may be null. The caller owns it. Throws when
    /// `in` does not fit.
    virtual void convertFromHost(hvArray_tag** out, hvArray_tag* in) = 0;
};

} // namespace orbis
