#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSString.hpp"

namespace orbis {

struct InternedName;

/// An interned dotted class, package or type name. Made right before a host call and destroyed after it; making
/// one of a known name neither allocates nor locks. Equal names are one interned name, in every virtual machine.
///
/// Threading: may be made on any thread.
class ORBIS_HOST_API COSNameID {
public:
    /// `name` is NUL-terminated; null is the empty name.
    COSNameID(char const* name);
    COSNameID(COSNameID const&);
    COSNameID& operator=(COSNameID const&);
    ~COSNameID();

    operator COSString() const; ///< a copy of the text

    /// Compares in constant time, whatever the names' lengths.
    bool operator==(COSNameID const& other) const { return name_ == other.name_; }

    /// The host's own record of the name.
    InternedName const* interned() const { return name_; }

private:
    InternedName const* name_;
};

} // namespace orbis
