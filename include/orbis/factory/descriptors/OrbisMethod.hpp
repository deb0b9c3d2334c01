#pragma once

#include "orbis/factory/base/String.hpp"
#include "orbis/factory/base/export.hpp"
#include "orbis/factory/descriptors/MethodAttributes.hpp"

#include "orbis/COSMethodInfo.hpp"
#include "orbis/COSMethodSignaturePtr.hpp"

namespace orbis::factory {

/// Base of the descriptors of callable members: serves the host's queries from a name, a description, a signature and
/// attributes. Immutable once it is passed to the host, which then owns it.
class ORBIS_FACTORY_API OrbisMethod : public COSMethodInfo {
public:
    /// Copies all three. The signature starts empty.
    OrbisMethod(String const& name, MethodAttributes attributes, String const& description);
    OrbisMethod(char const* name, MethodAttributes attributes, char const* description); ///< of texts that are not null
    ~OrbisMethod() override;

    /// As the constructor was given, as are the others.
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

    /// The signature, to be set once by `impl::Invoker::createSignature`.
    COSMethodSignaturePtr& signature();

private:
    String name_;
    String description_;
    COSMethodSignaturePtr signature_;
    MethodAttributes attributes_;
};

} // namespace orbis::factory
