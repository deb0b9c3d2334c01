#include "members/Signature.hpp"

namespace velmara {

void Signature::addOutput(orbis::COSNameID const& dataType, orbis::COSString const& name)
{
    TypeReference const type(dataType.interned());
    if (type.kind != TypeKind::Void)
        outputs_.push_back({type, name.c_str()});
}

void Signature::addInput(orbis::COSNameID const& dataType, orbis::COSString const& name)
{
    inputs_.push_back({TypeReference(dataType.interned()), name.c_str()});
}

std::string describe(std::span<Parameter const> parameters)
{
    std::string text;
    for (Parameter const& parameter : parameters) {
        if (!text.empty())
            text += ", ";
        text.append(parameter.name).append(": ").append(parameter.type.name->view());
    }
    return text;
}

} // namespace velmara
