#include "velmara/Hvm.hpp"

#include "api/callTargets.hpp"
#include "dispatch/Dispatch.hpp"

#include "api/HvmCall.hpp"
#include "arrays/Array.hpp"
#include "classes/Class.hpp"
#include "errors/hostError.hpp"

#include <algorithm>

namespace velmara {

namespace {

[[noreturn, gnu::noinline]] void throwClassError(char const* key, Class const& cls)
{
    throwHostError("VELMARA:class", key, {cls.name()->string()});
}

/// For a constructor that returned another array than it was given; the other one is destroyed.
[[noreturn, gnu::noinline]] void throwForeignResult(orbis::COSValue result, Class const& cls, Method const& constructor)
{
    ArrayPtr const foreign(result.array());
    throwHostError("VELMARA:result", "type", {constructor.name->string(), cls.name()->string()});
}

/// A new object, which its array holds from the beginning.
[[gnu::always_inline]] inline ArrayPtr createObject(Class& cls)
{
    ArrayPtr array(Array::createObjects(cls.name(), 1, 1));
    Object& object = cls.createObject();
    Array::of(array.get())->setObject(0, &object);
    object.initialize();
    return array;
}

/// Calls a constructor for a new object. When it fails, the object is finalized with its array.
[[gnu::always_inline]] inline ArrayPtr invokeConstructor(Class& cls, Method const& constructor,
                                                         ConvertedInputs const& inputs)
{
    ArrayPtr object = createObject(cls);
    orbis::COSValue output(object.get());
    int outputCount = 0;
    constructor.info->invoke(nullptr, outputCount, &output, inputs.count(), inputs.values());
    if (output.array() != object.get()) [[unlikely]]
        throwForeignResult(output, cls, constructor);
    return object;
}

[[gnu::always_inline]] inline ArrayPtr constructObject(Class& cls, Inputs inputs, Failure failure)
{
    cls.requireNotEnumeration();
    if (char const* const error = cls.constructionError()) [[unlikely]]
        throwClassError(error, cls);
    MethodGroup const& constructors = cls.tables().constructors;
    if (constructors.methods.empty()) {
        if (!inputs.empty())
            throwClassError("noConstructor", cls);
        return createObject(cls);
    }
    CallInputs const call{nullptr, inputs};
    ConvertedInputs converted(call.capacity());
    Method const* const constructor = choose(constructors, call, converted, failure);
    return constructor ? invokeConstructor(cls, *constructor, converted) : nullptr;
}

Method const* findCopying(Class const& cls)
{
    auto const& constructors = cls.tables().constructors;
    auto const copies = [&](Method const* method) {
        std::span<Parameter const> const inputs = method->explicitInputs();
        return inputs.size() == 1 && inputs[0].type.name == cls.name();
    };
    auto const found = std::find_if(constructors.methods.begin(), constructors.accessibleEnd(), copies);
    return found == constructors.accessibleEnd() ? nullptr : *found;
}

ArrayPtr copyObject(Machine& machine, hvArray_tag* array)
{
    Object* const object = requireObject(machine, array);
    Class& cls = requireClassOf(machine, array, object);
    Method const* const constructor = object ? findCopying(cls) : nullptr;
    if (!constructor)
        throwHostError("VELMARA:object", "notCopyable", {cls.name()->string()});
    hvArray_tag* const inputs[] = {array};
    CallInputs const call{nullptr, inputs};
    ConvertedInputs converted(call.capacity());
    if (!convertFor(*constructor, call, converted, [](ConversionRank) {})) {
        refuseNoMatch({&constructor, 1}, call, nullptr);
        return nullptr;
    }
    return invokeConstructor(cls, *constructor, converted);
}

} // namespace

ArrayPtr Hvm::copy(hvArray_tag* object)
{
    return callInto(*state_, [&] { return copyObject(*state_, object); });
}

ArrayPtr Hvm::construct(std::string_view className, Inputs inputs)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) {
            return constructObject(requireClass(*state_, className), inputs, nullptr);
        });
}

ArrayPtr Hvm::construct(MemberName& cls, Values inputs, Failure& failure)
{
    return callInto(
        *state_,
        [&]() __attribute__((always_inline)) {
            InputArrays const arrays(inputs);
            return constructObject(requireClass(*state_, cls), arrays.get(), &failure);
        },
        &failure);
}

} // namespace velmara
