#pragma once

#include "orbis_host_export.hpp"

#include "orbis/access.hpp"

namespace orbis {

class COSInterface;

/// A counted handle to a host object; empty when built from null. Strong unless told otherwise.
class ORBIS_HOST_API COSInterfacePtr {
public:
    /// Adds an external reference, unless `object` is null.
    COSInterfacePtr(COSInterface* object = nullptr);
    COSInterfacePtr(COSInterfacePtr const&);
    COSInterfacePtr& operator=(COSInterfacePtr const&);
    ~COSInterfacePtr();

    /// The raw object: null for an empty handle, and for a weak one whose object has ended.
    operator COSInterface*() const { return type_ == COSReferenceType::Strong ? object_ : livingObject(); }

    /// Precondition: the handle is not empty.
    COSInterface* operator->();
    COSInterface const* operator->() const; ///< likewise
    COSInterface& operator*();              ///< likewise
    COSInterface const& operator*() const;  ///< likewise

    /// Switches this handle's hold on the object.
    void setReferenceType(COSReferenceType type);
    COSReferenceType getReferenceType() const { return type_; } ///< strong, unless it was switched

private:
    /// What a weak handle still has.
    COSInterface* livingObject() const;

    COSInterface* object_;
    COSReferenceType type_;
};

} // namespace orbis
