#pragma once

#include "orbis/factory/descriptors/MethodImpl.hpp"

namespace orbis::factory {

/// A function that stands on its own, such as a package function. It answers its name, its signature and `invoke`
/// from the method it holds; every other question gets the host's default, whatever the attributes say.
class ORBIS_FACTORY_API FunctionInfo : public COSMethodInfo {
public:
    FunctionInfo(char const* name, MethodAttributes attributes);
    ~FunctionInfo() override;

    char const* getName() const override;
    COSMethodSignature const* getMethodSignature() const override;
    void invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override;

    /// The held method, to be bound before the function is handed to the host.
    impl::MethodImpl& method();

private:
    impl::MethodImpl method_;
};

} // namespace orbis::factory
