#pragma once

#include "orbis/factory/descriptors/Invoker.hpp"
#include "orbis/factory/descriptors/OrbisMethod.hpp"

namespace orbis::factory::impl {

/// The descriptor of a method or package function; calls through its invoker.
class ORBIS_FACTORY_API MethodImpl : public OrbisMethod {
public:
    MethodImpl(char const* name, MethodAttributes attributes, char const* description); ///< copies all three
    ~MethodImpl() override;

    void invoke(COSClient const* client, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override;

    /// To be filled in before the descriptor is passed to the host.
    Invoker& invoker();

private:
    Invoker invoker_;
};

} // namespace orbis::factory::impl
