#pragma once

#include "types/TypeReference.hpp"

#include "orbis/COSMethodSignature.hpp"

#include <span>
#include <string>
#include <vector>

namespace velmara {

struct Parameter {
    TypeReference type;
    std::string name;
};

/// The host's signature. Its data types are resolved as far as their names allow, so that the dispatch does not look
/// them up again.
class Signature final : public orbis::COSMethodSignature {
public:
    void addOutput(orbis::COSNameID const& dataType, orbis::COSString const& name) override;
    void addInput(orbis::COSNameID const& dataType, orbis::COSString const& name) override;

    std::vector<Parameter> const& inputs() const { return inputs_; }
    std::vector<Parameter> const& outputs() const { return outputs_; }

private:
    std::vector<Parameter> inputs_;
    std::vector<Parameter> outputs_; ///< without those of type "void"
};

/// "a: int32 scalar, b: double scalar"
std::string describe(std::span<Parameter const> parameters);

} // namespace velmara
