#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSNameID.hpp"

namespace orbis {

class COSDataType;
class COSTypeConversion;

/// The data types and conversions of the current virtual machine. Adding takes ownership in every case, also
/// when it throws (a name that is taken: "VELMARA:type:duplicate"). Removing what is not there, or is the host's own,
/// does nothing.
class ORBIS_HOST_API COSTypeRepository {
public:
    static void addGlobalType(COSDataType* type);        ///< takes `type` over
    static void removeGlobalType(COSNameID const& name); ///< by its name
    static void addConversion(COSNameID const& from, COSNameID const& to,
                              COSTypeConversion* conversion);                 ///< takes `conversion` over
    static void removeConversion(COSNameID const& from, COSNameID const& to); ///< the one between these two types

    /// The registered conversion, which stays the host's; null when there is none.
    ///
    /// One is there from the start: "any" to "unicodeString", between arrays and UTF-16 text. The values of
    /// "unicodeString" are `fl::ustring*` in the place of arrays, to be cast with `reinterpret_cast`:
    /// - `convertFromHost(&out, in)` stores the address of a new `fl::ustring`, made with `new`. It belongs to the
    ///   caller, who gives it back with `delete reinterpret_cast<fl::ustring*>(out)`. `in` stays the caller's. The text
    ///   has all code units of `in`, zeros and lone surrogates too. `in` is a character array of one row or without
    ///   elements, or a string array of one element. Others throw, and `out` stays as it was:
    ///   "VELMARA:class:RequireString" for any other array, "VELMARA:string:MissingNotSupported" for a missing string,
    ///   "VELMARA:array:null" for null.
    /// - `convertToHost(&out, value)` stores a new character array of the text, 0-by-0 for an empty text or null.
    ///   `value` stays the caller's.
    static COSTypeConversion* getConversion(COSNameID const& from, COSNameID const& to);
};

} // namespace orbis
