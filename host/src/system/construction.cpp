#include "velmara/Hvm.hpp"

#include "system/calls.hpp"

#include "system/Class.hpp"
#include "system/HvmCall.hpp"
#include "values/hostError.hpp"

#include "orbis/objectArrays.hpp"

namespace velmara {

namespace {

ArrayPtr makeObject(Class& cls)
{
    orbis::COSInterfacePtr const object = cls.newInstance();
    cls.initializeInstance(object);
    return ArrayPtr(orbis::omCreateORBISScalar(object));
}

/// Calls a constructor for a new object. When it fails, the object ends with its array.
ArrayPtr invokeConstructor(Class& cls, Method const& constructor, ConvertedInputs const& inputs)
{
    ArrayPtr object = makeObject(cls);
    orbis::COSValue output(object.get());
    int outputCount = 0;
    constructor.info->invoke(nullptr, outputCount, &output, inputs.count(), inputs.values());
    if (output.array() != object.get()) {
        ArrayPtr const foreign(output.array());
        throwHostError("VELMARA:result", "type",
                       {std::string(constructor.name->view()), std::string(cls.name()->view())});
    }
    return object;
}

void requireConstructible(Class const& cls)
{
    std::string const name(cls.name()->view());
    cls.requireNoEnumeration();
    if (cls.info().classIsAbstract() || cls.info().isAbstract())
        throwHostError("VELMARA:class", "abstract", {name});
    if (cls.info().getAccess() != orbis::ClassAccess::Public)
        throwHostError("VELMARA:class", "access", {name});
}

ArrayPtr constructObject(HvmState& machine, std::string_view className, Inputs inputs)
{
    Class& cls = requireClass(machine, className);
    requireConstructible(cls);
    MethodGroup const& constructors = cls.tables().constructors;
    if (constructors.methods.empty()) {
        if (!inputs.empty())
            throwHostError("VELMARA:class", "noConstructor", {std::string(className)});
        return makeObject(cls);
    }
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
