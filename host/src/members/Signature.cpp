#include "members/Signature.hpp"

#include "memory/ThreadCache.hpp"

#include "orbis/COSMethodSignaturePtr.hpp"

namespace velmara {

void Signature::addOutput(orbis::COSNameID const& dataType, orbis::COSString const& name)
{
    TypeReference const type(dataType.interned());
    if (type.kind != TypeKind::Void)
        outputs_.push_back({type, name.c_str()});
}

void Signature::addInput(orbis::COSNameID const& dataType, orbis::COSString const& name)
{
    inputs_.push_back({TypeReference(dataType.interned()), name.c_str()});
}

std::string describe(std::span<Parameter const> parameters)
{
    std::string text;
    for (Parameter const& parameter : parameters) {
        if (!text.empty())
            text += ", ";
        text.append(parameter.name).append(": ").append(parameter.type.name->view());
    }
    return text;
}

} // namespace velmara

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
