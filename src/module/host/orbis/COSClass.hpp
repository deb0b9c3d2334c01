#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

/// The class-object system of the host: objects, their classes and members, data types, values.
namespace orbis {

class COSClassInfo;
class COSMethodInfo;
class COSPropInfo;

/// A published class of the current virtual machine.
class ORBIS_HOST_API COSClass {
public:
    COSClass(COSClass const&) = delete;
    COSClass& operator=(COSClass const&) = delete;

    /// The class of that dotted name, initialised, or null when none is published. The packages on the way are
    /// populated when they were not yet.
    static COSClass* getClass(COSNameID const& name);

    /// Publishes a class that belongs to no package. The host takes ownership in every case.
    static void addGlobalClass(COSClassInfo* info);

    /// The class's own name: the last part of its dotted name.
    virtual char const* getName() const = 0;

    /// The host takes ownership in every case, also when it refuses the member by throwing.
    virtual void addMethod(COSMethodInfo* method) = 0;
    virtual void addProperty(COSPropInfo* property) = 0; ///< likewise

    /// A new, uninitialised instance.
    virtual COSInterfacePtr newInstance() = 0;

    /// Runs the instance initialisation: makes the instance data of the class and its superclasses.
    virtual void initializeInstance(COSInterfacePtr instance) = 0;

protected:
    COSClass() = default;
    ~COSClass() = default;
};

} // namespace orbis
