#pragma once

#include "orbis_host_export.hpp"

#include "orbis/COSClient.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/access.hpp"

#include <cstddef>

namespace orbis {

class COSMethodSignature;

/// Describes one method, constructor or package function to the host, and is called through `invoke`. Made with
/// `new`; whoever it is handed to owns it and deletes it.
class ORBIS_HOST_API COSMethodInfo {
public:
    /// Storage of the host; throws its `bad_alloc`.
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, void* place); ///< gives `place`
    static void operator delete(void* storage);               ///< null is allowed
    static void operator delete(void* storage, void* place);  ///< does nothing
    static void operator delete[](void* storage);             ///< null is allowed

    COSMethodInfo();
    COSMethodInfo(COSMethodInfo const&) = delete;
    COSMethodInfo& operator=(COSMethodInfo const&) = delete;
    virtual ~COSMethodInfo();

    /// The member's own name; valid as long as the descriptor.
    virtual char const* getName() const = 0;
    virtual char const* getDescription() const;         ///< ""
    virtual char const* getDetailedDescription() const; ///< what `getDescription` gives
    virtual MemberAccess getMemberAccess();             ///< Public
    virtual ExtendedMemberAccess getExtendedAccess();   ///< None

    /// The signature, or null. It stays the descriptor's.
    virtual COSMethodSignature const* getMethodSignature() const = 0;

    /// Calls the member. The inputs are converted to the signature's data types; their arrays stay the caller's.
    /// `outputs` has room for max(1, outputCount) values, which the caller gives back; `outputCount` becomes 1
    /// when it was 0 and a result was produced. A constructor finds the object under construction in
    /// `outputs[0]`. When the call throws, nothing was written.
    virtual void invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                        COSValue const* inputs) const = 0;

    virtual bool isFirstArgDispatch() const;              ///< true
    virtual bool isStatic() const;                        ///< false
    virtual bool isAbstract() const;                      ///< false
    virtual bool isSealed() const;                        ///< false
    virtual bool isVisible() const;                       ///< true
    virtual bool isDestructible() const;                  ///< false
    virtual bool isLocked() const;                        ///< true
    virtual bool isExplicit() const;                      ///< false
    virtual bool doesMethodOverrideAllSignatures() const; ///< false
};

} // namespace orbis
