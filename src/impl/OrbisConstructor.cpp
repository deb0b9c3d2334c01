#include "orbis/factory/descriptors/OrbisConstructor.hpp"

namespace orbis::factory::impl {

OrbisConstructor::OrbisConstructor(char const* name, MethodAttributes attributes, char const* description)
    : OrbisMethod(name, attributes, description)
{
}

OrbisConstructor::~OrbisConstructor() = default;

void OrbisConstructor::invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                              COSValue const* inputs) const
{
    invoker_.invokeFn(&invoker_, client, outputCount, outputs, inputCount, inputs);
}

Invoker& OrbisConstructor::invoker()
{
    return invoker_;
}

} // namespace orbis::factory::impl
