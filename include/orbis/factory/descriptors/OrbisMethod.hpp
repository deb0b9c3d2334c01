#pragma once

#include "orbis/factory/base/String.hpp"
#include "orbis/factory/base/export.hpp"
#include "orbis/factory/descriptors/MethodAttributes.hpp"

#include "orbis/COSMethodInfo.hpp"
#include "orbis/COSMethodSignaturePtr.hpp"

namespace orbis::factory {

/// Answers the host's questions about a member from a name, a description, a signature and an attribute set.
/// Read-only once it is handed to the host; the host owns and deletes it.
class ORBIS_FACTORY_API OrbisMethod : public COSMethodInfo {
public:
    /// All three are copied; the signature starts empty.
    OrbisMethod(String const& name, MethodAttributes attributes, String const& description);
    OrbisMethod(char const* name, MethodAttributes attributes, char const* description);
    ~OrbisMethod() override;

    char const* getName() const override;
    char const* getDescription() const override;
    MemberAccess getMemberAccess() override;
    COSMethodSignature const* getMethodSignature() const override;
    bool isStatic() const override;
    bool isAbstract() const override;
    bool isSealed() const override;
    bool isVisible() const override;
    bool isDestructible() const override;
    bool isLocked() const override;
    bool doesMethodOverrideAllSignatures() const override;

    /// The place of the signature, to be filled once by `impl::Invoker::createSignature`.
    COSMethodSignaturePtr& signature();

private:
    String name_;
    String description_;
    COSMethodSignaturePtr signature_;
    MethodAttributes attributes_;
};

} // namespace orbis::factory
