#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSDataTypePtr.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/Enumeration.hpp"
#include "orbis/access.hpp"

#include <cstddef>

namespace orbis {

class COSClass;
class COSModule;
class COSLoadInfo;

/// Describes one class to the host. Made with `new`; the package or the host it is handed to owns it.
class ORBIS_HOST_API COSClassInfo {
public:
    /// Storage of the host; throws its `bad_alloc`.
    static void* operator new(std::size_t size);
    static void operator delete(void* storage); ///< null is allowed

    COSClassInfo();
    COSClassInfo(COSClassInfo const&) = delete;
    COSClassInfo& operator=(COSClassInfo const&) = delete;
    virtual ~COSClassInfo();

    /// The class's full dotted name.
    virtual char const* getName() const = 0;
    virtual char const* getDescription() const;         ///< ""
    virtual char const* getDetailedDescription() const; ///< what `getDescription` gives
    virtual ClassAccess getAccess() const;              ///< Public

    /// Adds the class's methods and properties to `cls`. Called once, when the class is first needed; when it
    /// throws, what was added is dropped and the next request calls it again.
    virtual void initializeClass(COSClass* cls) = 0;

    /// The instance data of a new object, null allowed.
    virtual void* createInstanceData() = 0;

    /// Called once when a host object ends, with its instance data (or the native object recorded in its place),
    /// unless the object was made invalid before. The result is for the class info's own use.
    virtual bool destroyInstanceData(COSInterface* object, void* data) = 0;

    virtual void updateInstance(void* data);                                ///< nothing
    virtual bool slot10Flag() const;                                        ///< false
    virtual bool isHidden() const;                                          ///< false
    virtual bool isFullNameDisplayed() const;                               ///< true
    virtual bool isPropertyNameReservedByThisClass(char const* name) const; ///< false
    virtual bool canOtherClassContainThisClass(COSNameID other) const;      ///< true
    virtual bool canThisClassContainOtherClass(COSNameID other) const;      ///< true

    /// True for a handle class (objects are passed by identity), false for a value class.
    virtual bool isHandle() const = 0;
    virtual bool isHandleCompatible() const;                                                      ///< false
    virtual bool isEnumeration() const;                                                           ///< false
    virtual MemberAccess getConnectAccess() const;                                                ///< Public
    virtual COSConnectivity getConnectivity() const;                                              ///< None
    virtual bool areChildrenSaved() const;                                                        ///< false
    virtual bool isAbstract() const;                                                              ///< false
    virtual bool useClassDefaultsOnLoad() const;                                                  ///< false
    virtual bool isSealed() const;                                                                ///< false
    virtual bool isPropertyTruncationAllowed() const;                                             ///< false
    virtual bool isConstructedOnLoad() const;                                                     ///< false
    virtual bool arePropertiesCaseInsensitive() const;                                            ///< false
    virtual bool isInstanceLeaf() const;                                                          ///< true
    virtual bool isDestructible() const;                                                          ///< true
    virtual bool isLocked() const;                                                                ///< true
    virtual bool attemptToLoadProperty(char const* name);                                         ///< false
    virtual bool attemptToLoadMethod(char const* name);                                           ///< false
    virtual bool attemptToLoadEvent(char const* name);                                            ///< false
    virtual void instanceLoaded(COSInterfacePtr object, COSLoadInfo const* info);                 ///< nothing
    virtual bool customSave(COSInterfacePtr object, COSValue& value, COSDataTypePtr& type) const; ///< false
    virtual bool customLoad(COSInterfacePtr& object, COSValue value, COSDataTypePtr type) const;  ///< false
    virtual COSModule* getModule() const;                                                         ///< null
    virtual bool areClassFunctionsAllowed() const;                                                ///< true
    virtual bool areExtensionMethodsAllowed() const;                                              ///< false
    virtual bool usesRootRecords() const;                                                         ///< false
    virtual bool doEventsHaveSeparateNamespace() const;                                           ///< false
    virtual bool doesInexactPropertyNameIssueWarning() const;                                     ///< false
    virtual bool usesCustomChildrenList() const;                                                  ///< false
    virtual COSArrayNature getArrayNature() const;                                                ///< Heterogeneous
    virtual Enumeration<COSInterface*> getChildrenOfInstance(COSInterface* object) const;         ///< none
    virtual bool classIsAbstract() const;      ///< what `isAbstract` gives
    virtual bool allowInstanceUpdates() const; ///< false
};

} // namespace orbis
