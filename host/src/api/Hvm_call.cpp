#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/callTargets.hpp"
#include "arrays/arrayArguments.hpp"
#include "dispatch/FunctionValue.hpp"
#include "errors/hostError.hpp"

#include "host_extensions/NativeEquality.hpp"

#include <algorithm>

namespace velmara {

namespace {

[[noreturn, gnu::noinline]] void throwUnknownMethod(std::string_view className, std::string_view method)
{
    throwHostError("VELMARA:member", "unknown", {std::string(className), std::string(method)});
}

[[gnu::always_inline]] inline ArrayPtr callMethod(Machine& machine, hvArray_tag* array, std::string_view method,
                                                  Inputs inputs)
{
    Class& cls = requireClassOf(machine, array, requireObject(machine, array));
    MethodGroup const* const group = cls.findMethods(method);
    if (!group)
        throwUnknownMethod(cls.name()->view(), method);
    return dispatchOnObject(*group, array, inputs);
}

ArrayPtr callStaticMethod(Machine& machine, std::string_view className, std::string_view method, Inputs inputs)
{
    Class& cls = requireClass(machine, className);
    MethodGroup const* const group = cls.findMethods(method);
    if (!group)
        throwUnknownMethod(className, method);
    if (std::ranges::all_of(group->methods, &Method::takesObject))
        throwHostError("VELMARA:member", "notStatic", {std::string(className), std::string(method)});
    return dispatch(*group, {nullptr, inputs});
}

ArrayPtr callPackageFunction(Machine& machine, std::string_view fullName, Inputs inputs)
{
    MethodGroup const* const group = machine.packages().findFunctions(fullName);
    if (!group)
        throwHostError("VELMARA:function", "unknown", {std::string(fullName)});
    return dispatch(*group, {nullptr, inputs});
}

ArrayPtr callFunctionValue(hvArray_tag* array, Inputs inputs)
{
    HeldFunction const* const function = requireArray(array).function();
    if (!function)
        throwWrongClass(*Array::of(array), "notFunction");
    array->add_reference(); // the caller may release it while it runs
    ArrayPtr const held(array);
    return FunctionValue::required(*function).call(inputs);
}

void endObjects(Machine& machine, hvArray_tag* array)
{
    requireObjectArray(array);
    for (Object const* const object : Array::of(array)->objects()) {
        if (object && object->machine() && object->machine() != &machine)
            object->throwUnusable();
        if (object && object->isEnumerator())
            throwHostError("VELMARA:enumeration", "noDelete", {object->className()->string()});
    }
    // Ending runs native code, which may write to the array: the objects are held and counted apart from it.
    ArrayPtr const held(Array::of(array)->shareData());
    for (std::size_t i = 0; i < Array::of(held.get())->size(); ++i)
        if (Object* const object = Array::of(held.get())->objects()[i])
            object->finalize();
}

bool compareObjects(Machine& machine, hvArray_tag* a, hvArray_tag* b)
{
    Object* const first = requireObject(machine, a);
    Object* const second = requireObject(machine, b);
    if (!first || !second || first->className() != second->className())
        return false;
    Class& cls = requireClassOf(machine, a, first);
    auto const* const equality = dynamic_cast<orbis::host_extensions::NativeEquality const*>(&cls.info());
    orbis::COSNameID const name(cls.name()->text);
    void* const natives[] = {first->getNativeObject(name), second->getNativeObject(name)};
    return equality && equality->comparesNatives() && natives[0] && natives[1] &&
           equality->areEqual(natives[0], natives[1]);
}

} // namespace

bool Hvm::areEqual(hvArray_tag* a, hvArray_tag* b)
{
    return callInto(*state_, [&] { return compareObjects(*state_, a, b); });
}

ArrayPtr Hvm::call(hvArray_tag* object, std::string_view method, Inputs inputs)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return callMethod(*state_, object, method, inputs); });
}

ArrayPtr Hvm::call(hvArray_tag* object, std::string_view method, Inputs inputs, Failure& failure)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return callMethod(*state_, object, method, inputs); },
        &failure);
}

ArrayPtr Hvm::callStatic(std::string_view className, std::string_view method, Inputs inputs)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return callStaticMethod(*state_, className, method, inputs); });
}

ArrayPtr Hvm::callFunction(std::string_view fullName, Inputs inputs)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return callPackageFunction(*state_, fullName, inputs); });
}

ArrayPtr Hvm::callFunction(std::string_view fullName, Inputs inputs, Failure& failure)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return callPackageFunction(*state_, fullName, inputs); },
        &failure);
}

ArrayPtr Hvm::callFunction(hvArray_tag* function, Inputs inputs)
{
    return callInto(*state_, [&] { return callFunctionValue(function, inputs); });
}

void Hvm::deleteObjects(hvArray_tag* objects)
{
    callInto(*state_, [&] { endObjects(*state_, objects); });
}

} // namespace velmara
