#pragma once

#include "orbis_host_export.hpp"

namespace orbis {

class COSMethodSignature;

/// Owns one signature, or none.
class ORBIS_HOST_API COSMethodSignaturePtr {
public:
    COSMethodSignaturePtr();
    COSMethodSignaturePtr(COSMethodSignaturePtr const&) = delete;
    COSMethodSignaturePtr& operator=(COSMethodSignaturePtr const&) = delete;
    ~COSMethodSignaturePtr();

    /// Takes `signature` over and destroys the one held before.
    COSMethodSignaturePtr& operator=(COSMethodSignature* signature);

    /// The signature, or null; it stays this pointer's.
    operator COSMethodSignature*() const;
    COSMethodSignature* operator->() const; ///< the same

private:
    COSMethodSignature* signature_ = nullptr;
};

} // namespace orbis
