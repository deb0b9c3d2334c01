#include "orbis/factory/descriptors/MethodImpl.hpp"

namespace orbis::factory::impl {

MethodImpl::MethodImpl(char const* name, MethodAttributes attributes, char const* description)
    : OrbisMethod(name, attributes, description)
{
}

MethodImpl::~MethodImpl() = default;

void MethodImpl::invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                        COSValue const* inputs) const
{
    Invoker const* invoker = &invoker_;
    asm("" : "+r"(invoker)); // keeps the compiler from computing the address twice
    invoker->invokeFn(invoker, client, outputCount, outputs, inputCount, inputs);
}

Invoker& MethodImpl::invoker()
{
    return invoker_;
}

} // namespace orbis::factory::impl
