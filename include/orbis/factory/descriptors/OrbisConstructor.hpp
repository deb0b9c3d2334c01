#pragma once

#include "orbis/factory/descriptors/Invoker.hpp"
#include "orbis/factory/descriptors/OrbisMethod.hpp"

namespace orbis::factory::impl {

/// The descriptor of a constructor; calls through its invoker.
class ORBIS_FACTORY_API OrbisConstructor : public OrbisMethod {
public:
    OrbisConstructor(char const* name, MethodAttributes attributes, char const* description); ///< copies all three
    ~OrbisConstructor() override;

    void invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override;

    /// To be filled in before the descriptor is passed to the host.
    Invoker& invoker();

private:
    Invoker invoker_;
};

} // namespace orbis::factory::impl
