#include "orbis/COSMethodSignature.hpp"

#include "members/Signature.hpp"
#include "memory/ThreadCache.hpp"

#include "orbis/COSMethodSignaturePtr.hpp"

namespace orbis {

COSMethodSignature::COSMethodSignature()
{
    ++velmara::currentLiveCounts().descriptors;
}
COSMethodSignature::~COSMethodSignature()
{
    --velmara::currentLiveCounts().descriptors;
}

COSMethodSignature* COSMethodSignature::createMethodSignature()
{
    return new velmara::Signature;
}

COSMethodSignaturePtr::COSMethodSignaturePtr() = default;
COSMethodSignaturePtr::~COSMethodSignaturePtr()
{
    delete signature_;
}

COSMethodSignaturePtr& COSMethodSignaturePtr::operator=(COSMethodSignature* signature)
{
    if (signature != signature_) {
        delete signature_;
        signature_ = signature;
    }
    return *this;
}

COSMethodSignaturePtr::operator COSMethodSignature*() const
{
    return signature_;
}
COSMethodSignature* COSMethodSignaturePtr::operator->() const
{
    return signature_;
}

} // namespace orbis
