#include "velmara/Hvm.hpp"

#include "api/HvmCall.hpp"
#include "api/callTargets.hpp"
#include "classes/Class.hpp"
#include "dispatch/Dispatch.hpp"
#include "dispatch/ResultValue.hpp"
#include "dispatch/mismatchReason.hpp"
#include "errors/hostError.hpp"

namespace velmara {

namespace {

[[noreturn, gnu::noinline]] void throwPropertyError(char const* key, Property const& property)
{
    throwHostError("VELMARA:property", key, {property.name->string(), property.definingClass.name()->string()});
}

[[noreturn, gnu::noinline]] void throwUnreadable(Property const& property)
{
    if (property.traits.isAbstract)
        throwPropertyError("abstract", property);
    bool const isWriteOnly = property.canBeWritten && property.traits.getAccess == orbis::MemberAccess::NoAccess;
    throwPropertyError(isWriteOnly ? "writeOnly" : "getAccess", property);
}

[[noreturn, gnu::noinline]] void throwUnwritable(Property const& property)
{
    if (property.traits.isAbstract)
        throwPropertyError("abstract", property);
    bool const isReadOnly = property.canBeRead && property.traits.setAccess == orbis::MemberAccess::NoAccess;
    throwPropertyError(isReadOnly ? "readOnly" : "setAccess", property);
}

[[noreturn, gnu::noinline]] void throwMismatch(Machine& machine, Property const& property, orbis::COSValue const& given)
{
    InputArrays const arrays({&given, 1});
    checkInputs(machine, arrays.get());
    hvArray_tag* const value = arrays.get().front();
    throwHostError("VELMARA:property", "value", {property.name->string(), mismatchReason(property.type(), value)});
}

[[noreturn, gnu::noinline]] void throwUnknown(Class const& cls, std::string_view name)
{
    throwHostError("VELMARA:property", "unknown", {cls.name()->string(), std::string(name)});
}

[[gnu::always_inline]] inline Property const& requireProperty(Class& cls, std::string_view name)
{
    Property const* const property = cls.findProperty(name);
    if (!property) [[unlikely]]
        throwUnknown(cls, name);
    return *property;
}

[[gnu::always_inline]] inline Property const& requireProperty(Class& cls, MemberName& name)
{
    auto const* const property = memberOf<Property>(cls, name, [&] { return cls.findProperty(name.member()); });
    if (!property) [[unlikely]]
        throwUnknown(cls, name.member());
    return *property;
}

/// The object whose property it is; null for a static one.
[[gnu::always_inline]] inline Object* requireOwner(Property const& property, Object* object)
{
    if (property.traits.isStatic)
        return nullptr;
    if (!object) [[unlikely]]
        throwPropertyError("noObject", property);
    return object;
}

/// A value that was read, until the property releases it.
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

Value read(Property const& property, Object* object)
{
    if (!property.canBeRead) [[unlikely]]
        throwUnreadable(property);
    Object* const owner = requireOwner(property, object);
    // Destroyed after the read value: the property releases its value before an array of it is destroyed.
    ResultValue result(&property.type());
    ReadValue const value(property, owner);
    result.slot() = value.value();
    return result.take(property.name);
}

void writeArray(Machine& machine, Property const& property, Object* owner, orbis::COSValue const& value)
{
    InputArrays const arrays({&value, 1});
    hvArray_tag* const array = arrays.get().front();
    ConvertedInputs converted(1);
    if (!array || converted.add(property.type(), array) == notConvertible) [[unlikely]]
        throwMismatch(machine, property, value);
    property.info->setValue(owner, *converted.values());
}

[[gnu::always_inline]] inline void write(Machine& machine, Property const& property, Object* object,
                                         orbis::COSValue const& value)
{
    if (!property.canBeWritten) [[unlikely]]
        throwUnwritable(property);
    Object* const owner = requireOwner(property, object);
    TypeReference const& type = property.type();
    if (orbis::COSValue scalar; type.kind == TypeKind::Scalar && type.scalar.read(value, scalar) != notConvertible)
        return property.info->setValue(owner, scalar);
    writeArray(machine, property, owner, value);
}

template <class Named>
[[gnu::always_inline]] inline Value readOf(Machine& machine, hvArray_tag* object, Named& property)
{
    Object* const first = requireObject(machine, object);
    return read(requireProperty(requireClassOf(machine, object, first), property), first);
}

template <class Named>
[[gnu::always_inline]] inline void writeOf(Machine& machine, hvArray_tag* object, Named& property,
                                           orbis::COSValue const& value)
{
    Object* const first = requireObject(machine, object);
    write(machine, requireProperty(requireClassOf(machine, object, first), property), first, value);
}

} // namespace

ArrayPtr Hvm::get(hvArray_tag* object, std::string_view property)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) {
            return ResultValue::toArray(readOf(*state_, object, property));
        });
}

Value Hvm::get(hvArray_tag* object, MemberName& property, Failure& failure)
{
    return callInto(
        *state_, [&]() __attribute__((always_inline)) { return readOf(*state_, object, property); }, &failure);
}

void Hvm::set(hvArray_tag* object, std::string_view property, hvArray_tag* value)
{
    callInto(
        *state_, [&]() __attribute__((always_inline)) { writeOf(*state_, object, property, orbis::COSValue(value)); });
}

void Hvm::set(hvArray_tag* object, MemberName& property, orbis::COSValue const& value, Failure& failure)
{
    callInto(
        *state_, [&]() __attribute__((always_inline)) { writeOf(*state_, object, property, value); }, &failure);
}

ArrayPtr Hvm::getStatic(std::string_view className, std::string_view property)
{
    return callInto(*state_, [&] {
        return ResultValue::toArray(read(requireProperty(requireClass(*state_, className), property), nullptr));
    });
}

void Hvm::setStatic(std::string_view className, std::string_view property, hvArray_tag* value)
{
    callInto(*state_, [&] {
        write(*state_, requireProperty(requireClass(*state_, className), property), nullptr, orbis::COSValue(value));
    });
}

} // namespace velmara
