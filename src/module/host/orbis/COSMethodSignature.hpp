#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSNameID.hpp"
#include "orbis/COSString.hpp"

namespace orbis {

/// What a method takes and gives: the data type and name of each input and output, in the order they are added.
class ORBIS_HOST_API COSMethodSignature {
public:
    COSMethodSignature(COSMethodSignature const&) = delete;
    COSMethodSignature& operator=(COSMethodSignature const&) = delete;

    /// A new, empty signature. Place it into a `COSMethodSignaturePtr`, which owns it.
    static COSMethodSignature* createMethodSignature();

    /// Appends a result or parameter of a data type, by the type's name.
    virtual void addOutput(COSNameID const& dataType, COSString const& name) = 0;
    virtual void addInput(COSNameID const& dataType, COSString const& name) = 0; ///< likewise

protected:
    friend class COSMethodSignaturePtr;
    COSMethodSignature();
    virtual ~COSMethodSignature();
};

} // namespace orbis
