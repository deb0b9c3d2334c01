#pragma once

#include "orbis/factory/descriptors/MethodImpl.hpp"

namespace orbis::factory {

/// The descriptor of a function without a class, such as a package function. It takes its name, its signature and
/// `invoke` from the method it holds; everything else is the host's default, whatever the attributes are.
class ORBIS_FACTORY_API FunctionInfo : public COSMethodInfo {
public:
    /// Copies both.
    FunctionInfo(char const* name, MethodAttributes attributes);
    ~FunctionInfo() override;

    /// As the held method says, as are the others.
    char const* getName() const override;
    COSMethodSignature const* getMethodSignature() const override;
    void invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override;

    /// The held method, to be filled in before this descriptor is passed to the host.
    impl::MethodImpl& method();

private:
    impl::MethodImpl method_;
};

} // namespace orbis::factory
