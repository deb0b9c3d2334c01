#include "velmara/Hvm.hpp"

#include "api/callTargets.hpp"

#include "api/HvmCall.hpp"
#include "arrays/Array.hpp"
#include "classes/Class.hpp"
#include "errors/hostError.hpp"

namespace velmara {

namespace {

/// A new object, which its array holds from the beginning.
[[gnu::always_inline]] inline ArrayPtr createObject(Class& cls)
{
    ArrayPtr array(Array::createObjects(cls.name(), 1, 1));
    Object& object = cls.createObject();
    Array::of(array.get())->setFirstObject(0, object);
    object.initialize();
    return array;
}

/// Calls a constructor for a new object. When it fails, the object is finalized with its array.
[[gnu::always_inline]] inline ArrayPtr invokeConstructor(Class& cls, Method const& constructor, int inputCount,
                                                         orbis::COSValue const* inputs)
{
    ArrayPtr object = createObject(cls);
    orbis::COSValue output(object.get());
    int outputCount = 0;
    constructor.info->invoke(nullptr, outputCount, &output, inputCount, inputs);
    if (output.array() != object.get()) {
        ArrayPtr const foreign(output.array());
        throwHostError("VELMARA:result", "type", {constructor.name->string(), cls.name()->string()});
    }
    return object;
}

/// With every constructor and every input.
[[gnu::noinline]] ArrayPtr constructAny(Class& cls, Inputs inputs)
{
    MethodGroup const& constructors = cls.tables().constructors;
    if (constructors.methods.empty()) {
        if (!inputs.empty())
            throwHostError("VELMARA:class", "noConstructor", {cls.name()->string()});
        return createObject(cls);
    }
    CallInputs const call{nullptr, inputs};
    ConvertedInputs converted(call.capacity());
    Method const& constructor = choose(constructors, call, converted);
    return invokeConstructor(cls, constructor, converted.count(), converted.values());
}

[[gnu::always_inline]] inline ArrayPtr constructObject(Machine& machine, std::string_view className, Inputs inputs)
{
    Class& cls = requireClass(machine, className);
    if (cls.isEnumeration()) [[unlikely]]
        cls.requireNotEnumeration();
    if (char const* const refusal = cls.constructionError()) [[unlikely]]
        throwHostError("VELMARA:class", refusal, {cls.name()->string()});
    if (Method const* const constructor = cls.tables().constructors.scalarConstructor) [[likely]] {
        ScalarInputs plain;
        if (plain.read(*constructor, inputs)) [[likely]]
            return invokeConstructor(cls, *constructor, static_cast<int>(constructor->inputCount), plain.values());
    }
    return constructAny(cls, inputs);
}

} // namespace

ArrayPtr Hvm::construct(std::string_view className, Inputs inputs)
{
    return callInto(*state_, [&] { return constructObject(*state_, className, inputs); });
}

} // namespace velmara
