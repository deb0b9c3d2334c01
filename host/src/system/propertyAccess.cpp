#include "velmara/Hvm.hpp"

#include "system/Class.hpp"
#include "system/HvmCall.hpp"
#include "system/ResultValue.hpp"
#include "system/calls.hpp"
#include "values/hostError.hpp"

namespace velmara {

namespace {

std::string textOf(Property const& property)
{
    return std::string(property.name->view());
}

Property const& requireProperty(Class& cls, std::string_view name)
{
    Property const* const property = cls.findProperty(name);
    if (!property)
        throwHostError("VELMARA:property", "unknown", {std::string(cls.name()->view()), std::string(name)});
    if (property->isAbstract)
        throwHostError("VELMARA:property", "abstract", {textOf(*property)});
    return *property;
}

/// The object that the property is one of; null for a static one.
Object* requireOwner(Property const& property, Object* object)
{
    if (property.isStatic)
        return nullptr;
    if (!object)
        throwHostError("VELMARA:property", "noObject", {textOf(property)});
    return object;
}

/// A value that was read, until it is given back to the property.
class ReadValue {
public:
    ReadValue(Property const& property, Object* object)
        : property_(property),
          object_(object),
          value_(property.info->getValue(object))
    {
    }
    ReadValue(ReadValue const&) = delete;
    ReadValue& operator=(ReadValue const&) = delete;

    ~ReadValue()
    {
        try {
            property_.info->releaseValue(object_, value_);
        } catch (...) {
        }
    }

    orbis::COSValue value() const { return value_; }

private:
    Property const& property_;
    Object* object_;
    orbis::COSValue value_;
};

ArrayPtr read(Property const& property, Object* object)
{
    if (property.getAccess != orbis::MemberAccess::Public)
        throwHostError("VELMARA:property", "getAccess", {textOf(property)});
    Object* const owner = requireOwner(property, object);
    TypeReference const& type = property.type();
    ResultValue result(&type); // outlives the read value: the array goes after the property was told
    ReadValue const value(property, owner);
    result.slot() = value.value();
    return result.take(property.name);
}

void write(HvmState& machine, Property const& property, Object* object, hvArray_tag* value)
{
    if (property.setAccess != orbis::MemberAccess::Public)
        throwHostError("VELMARA:property", "setAccess", {textOf(property)});
    Object* const owner = requireOwner(property, object);
    checkInputs(machine, {&value, 1});
    ConvertedInputs converted(1);
    if (converted.add(property.type(), value) == noFit)
        throwHostError("VELMARA:property", "value", {textOf(property), explainRefusal(property.type(), value)});
    property.info->setValue(owner, *converted.values());
}

Property const& requireStaticProperty(HvmState& machine, std::string_view className, std::string_view property)
{
    return requireProperty(requireClass(machine, className), property);
}

} // namespace

ArrayPtr Hvm::get(hvArray_tag* object, std::string_view property)
{
    return callInto(*state_, [&] {
        Object* const first = requireObject(*state_, object);
        return read(requireProperty(requireClassOf(*state_, object, first), property), first);
    });
}

void Hvm::set(hvArray_tag* object, std::string_view property, hvArray_tag* value)
{
    callInto(*state_, [&] {
        Object* const first = requireObject(*state_, object);
        write(*state_, requireProperty(requireClassOf(*state_, object, first), property), first, value);
    });
}

ArrayPtr Hvm::getStatic(std::string_view className, std::string_view property)
{
    return callInto(*state_, [&] { return read(requireStaticProperty(*state_, className, property), nullptr); });
}

void Hvm::setStatic(std::string_view className, std::string_view property, hvArray_tag* value)
{
    callInto(*state_, [&] { write(*state_, requireStaticProperty(*state_, className, property), nullptr, value); });
}

} // namespace velmara
