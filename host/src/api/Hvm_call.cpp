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

/// The methods of the name in the class, as the name remembers them where it is of that class.
[[gnu::always_inline]] inline MethodGroup const* findMethods(Class& cls, MemberName& name)
{
    return memberOf<MethodGroup>(cls, name, [&] { return cls.findMethods(name.member()); });
}

MethodGroup const* findMethods(Class& cls, std::string_view name)
{
    return cls.findMethods(name);
}

std::string_view memberText(MemberName const& name)
{
    return name.member();
}

std::string_view memberText(std::string_view name)
{
    return name;
}

template <class Named, class Input>
[[gnu::always_inline]] inline Value callMethod(Machine& machine, hvArray_tag* array, Named& method,
                                               std::span<Input const> inputs, Failure failure)
{
    Class& cls = requireClassOf(machine, array, requireObject(machine, array));
    MethodGroup const* const group = findMethods(cls, method);
    if (!group)
        throwUnknownMethod(cls.name()->view(), memberText(method));
    return dispatch(*group, array, inputs, failure);
}

void requireStatic(MethodGroup const* group, std::string_view className, std::string_view method)
{
    if (!group)
        throwUnknownMethod(className, method);
    if (std::ranges::all_of(group->methods, &Method::takesObject))
        throwHostError("VELMARA:member", "notStatic", {std::string(className), std::string(method)});
}

Value callStaticMethod(Machine& machine, std::string_view className, std::string_view method, Inputs inputs)
{
    MethodGroup const* const group = requireClass(machine, className).findMethods(method);
    requireStatic(group, className, method);
    return dispatch(*group, nullptr, inputs, nullptr);
}

Value callStaticMethod(Machine& machine, MemberName& method, Hvm::Values inputs, Failure failure)
{
    MethodGroup const* const group = findMethods(requireClass(machine, method), method);
    requireStatic(group, method.owner(), method.member());
    return dispatch(*group, nullptr, inputs, failure);
}

MethodGroup const& requireFunctions(Machine& machine, std::string_view fullName)
{
    MethodGroup const* const group = machine.packages().findFunctions(fullName);
    if (!group)
        throwHostError("VELMARA:function", "unknown", {std::string(fullName)});
    return *group;
}

[[gnu::always_inline]] inline MethodGroup const& requireFunctions(Machine& machine, MemberName& name)
{
    MemberName::Meaning& meaning = currentMeaning(machine, name);
    if (!meaning.member) [[unlikely]] {
        MethodGroup const& found = requireFunctions(machine, name.owner());
        remember(machine, meaning, nullptr, &found); // now: loading it has published it
        return found;
    }
    return *static_cast<MethodGroup const*>(meaning.member);
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
        *state_, [&]() __attribute__((always_inline)) {
            return ResultValue::toArray(callMethod(*state_, object, method, inputs, nullptr));
        });
}

Value Hvm::call(hvArray_tag* object, MemberName& method, Values inputs, Failure& failure)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return callMethod(*state_, object, method, inputs, &failure); },
        &failure);
}

ArrayPtr Hvm::callStatic(std::string_view className, std::string_view method, Inputs inputs)
{
    return callInto(*state_,
                    [&] { return ResultValue::toArray(callStaticMethod(*state_, className, method, inputs)); });
}

Value Hvm::callStatic(MemberName& method, Values inputs, Failure& failure)
{
    return callInto(
        *state_, [&] { return callStaticMethod(*state_, method, inputs, &failure); }, &failure);
}

ArrayPtr Hvm::callFunction(std::string_view fullName, Inputs inputs)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) {
            return ResultValue::toArray(dispatch(requireFunctions(*state_, fullName), nullptr, inputs, nullptr));
        });
}

Value Hvm::callFunction(MemberName& function, Values inputs, Failure& failure)
{
    return callInto(
        *state_,
        [&]() __attribute__((always_inline)) {
            return dispatch(requireFunctions(*state_, function), nullptr, inputs, &failure);
        },
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
