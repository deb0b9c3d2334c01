#include "dispatch/ResultValue.hpp"

#include "arrays/Array.hpp"
#include "dispatch/objectRank.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "types/TypeRepository.hpp"

#include "orbis/COSDataType.hpp"
#include "orbis/COSTypeConversion.hpp"

#include <utility>

namespace velmara {

namespace {

bool isOf(TypeReference const& type, hvArray_tag* array)
{
    Array const& given = *Array::of(array);
    switch (type.kind) {
    case TypeKind::Void:
        return false;
    case TypeKind::Any:
        return true;
    case TypeKind::Scalar:
        return given.classID() == type.scalarClass && given.isScalar();
    case TypeKind::Elements:
        return given.classID() == type.scalarClass;
    case TypeKind::Text:
        return given.classID() == hvCHAR_CLASS;
    case TypeKind::Function:
        return given.function() != nullptr;
    case TypeKind::Optional: // replaced by the type of its value before
        return false;
    case TypeKind::Named:
        break;
    }
    return (type.element ? objectVectorRank(type.element, given) : firstObjectRank(type.name, given)) != notConvertible;
}

[[noreturn]] void throwMismatch(TypeReference const* type, std::string_view member)
{
    throwHostError("VELMARA:result", "type", {std::string(member), type ? type->name->string() : std::string("void")});
}

orbis::COSDataType* registered(TypeReference const* type)
{
    Machine* const machine = Machine::current();
    return machine && type && type->kind == TypeKind::Named ? machine->types().findRegistered(type->name) : nullptr;
}

} // namespace

Value ResultValue::takeOther(std::string_view member)
{
    if (type_ && type_->kind == TypeKind::Optional) {
        if (value_.isArray() && Array::of(value_.array())->isEmptyDouble())
            return Value(takeSlot(), ValueShape::Optional);
        type_ = type_->value.get();
        if (type_->kind == TypeKind::Scalar && value_.scalarClass() == type_->scalarClass)
            return Value(value_);
    }
    if (value_.isArray())
        return takeArray(member);
    if (value_.isEmpty())
        return {};
    throwMismatch(type_, member);
}

Value ResultValue::takeArray(std::string_view member)
{
    if (registered(type_)) {
        auto* const conversion = Machine::required().types().findConversion(anyTypeName(), type_->name);
        if (conversion) {
            hvArray_tag* converted = nullptr;
            conversion->convertToHost(&converted, value_.array());
            return Value(ArrayPtr(converted));
        }
        return Value(takeSlot());
    }
    if (!type_ || (value_.array() && !isOf(*type_, value_.array())))
        throwMismatch(type_, member);
    return Value(takeSlot(), type_->element ? ValueShape::List : ValueShape::Plain);
}

void ResultValue::release() noexcept
{
    if (orbis::COSDataType* const type = registered(type_)) {
        try {
            type->releaseValue(value_);
        } catch (...) {
        }
    } else {
        hvDestroyArray(value_.array());
    }
}

} // namespace velmara
