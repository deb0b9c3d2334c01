#include "module/copyConstruct.hpp"

#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/detail/members/Copying.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"

#include "orbis/objectArrays.hpp"

#include <memory>

namespace orbis::factory {

void copyConstruct(impl::Invoker const* invoker, COSClient const*, int& outputCount, COSValue* outputs, int,
                   COSValue const* inputs)
{
    auto const& copying = *invoker->target.as<detail::Copying const*>();
    detail::NamedClass const& named = copying.named();
    char const* const className = detail::className(named);
    void const* const original = detail::requireNativeOf(named, inputs[0].array());
    detail::requireExactType(named, original);
    std::unique_ptr<void, void (*)(void*)> copy(copying.copy(original), named.destroy);
    COSInterfacePtr const host = omGetArrayElement(outputs[0].array(), 0);
    detail::bindConstructed(host, COSNameID(className), detail::toBound(named, copy.get()));
    static_cast<void>(copy.release());
    if (outputCount == 0)
        outputCount = 1;
}

} // namespace orbis::factory
