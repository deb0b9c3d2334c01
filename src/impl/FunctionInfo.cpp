#include "orbis/factory/descriptors/FunctionInfo.hpp"

namespace orbis::factory {

FunctionInfo::FunctionInfo(char const* name, MethodAttributes attributes) : method_(name, attributes, "") {}

FunctionInfo::~FunctionInfo() = default;

char const* FunctionInfo::getName() const
{
    return method_.getName();
}

COSMethodSignature const* FunctionInfo::getMethodSignature() const
{
    return method_.getMethodSignature();
}

void FunctionInfo::invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                          COSValue const* inputs) const
{
    method_.invoke(client, outputCount, outputs, inputCount, inputs);
}

impl::MethodImpl& FunctionInfo::method()
{
    return method_;
}

} // namespace orbis::factory
