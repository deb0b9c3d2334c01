#include "velmara/Hvm.hpp"

#include "api/callTargets.hpp"
#include "dispatch/Dispatch.hpp"

#include "api/HvmCall.hpp"
#include "arrays/Array.hpp"
#include "classes/Class.hpp"
#include "errors/hostError.hpp"

namespace velmara {

namespace {

/// A new object, which its array holds from the beginning.
ArrayPtr createObject(Class& cls)
{
    ArrayPtr array(Array::createObjects(cls.name(), 1, 1));
    Object& object = cls.createObject();
    Array::of(array.get())->setFirstObject(0, object);
    object.initialize();
    return array;
}

/// Calls a constructor for a new object. When it fails, the object is finalized with its array.
ArrayPtr invokeConstructor(Class& cls, Method const& constructor, ConvertedInputs const& inputs)
{
    ArrayPtr object = createObject(cls);
    orbis::COSValue output(object.get());
    int outputCount = 0;
    constructor.info->invoke(nullptr, outputCount, &output, inputs.count(), inputs.values());
    if (output.array() != object.get()) {
        ArrayPtr const foreign(output.array());
        throwHostError("VELMARA:result", "type", {constructor.name->string(), cls.name()->string()});
    }
    return object;
}

ArrayPtr constructObject(Machine& machine, std::string_view className, Inputs inputs)
{
    Class& cls = requireClass(machine, className);
    cls.requireNotEnumeration();
    if (char const* const error = cls.constructionError())
        throwHostError("VELMARA:class", error, {cls.name()->string()});
    MethodGroup const& constructors = cls.tables().constructors;
    if (constructors.methods.empty() && !inputs.empty())
        throwHostError("VELMARA:class", "noConstructor", {cls.name()->string()});
    if (constructors.methods.empty())
        return createObject(cls);
    CallInputs const call{nullptr, inputs};
    ConvertedInputs converted(call.capacity());
    Method const& constructor = choose(constructors, call, converted);
    return invokeConstructor(cls, constructor, converted);
}

} // namespace

ArrayPtr Hvm::construct(std::string_view className, Inputs inputs)
{
    return callInto(*state_, [&] { return constructObject(*state_, className, inputs); });
}

} // namespace velmara
