#include "types/BuiltInType.hpp"

#include "arrays/Array.hpp"
#include "arrays/arrayComparison.hpp"
#include "machine/Machine.hpp"
#include "types/TypeRepository.hpp"
#include "types/valueOrder.hpp"

#include "host_extensions/numericClasses.hpp"
#include "libhv/libhv.hpp"

namespace velmara {

namespace {

/// How the host orders its kinds of types; registered types have numbers of their own.
enum BuiltInTypeKind : int { scalarTypeKind = 1, arrayTypeKind = 2, objectTypeKind = 3 };

class ScalarType final : public orbis::COSDataType {
public:
    explicit ScalarType(TypeReference const& type) : type_(type) {}

    char const* scalarTypeName() const override { return type_.name->text; }
    int typeKind() const override { return scalarTypeKind; }
    char const* typeCategory() const override { return "Fundamental"; }
    bool slot11Flag() const override { return false; }

    char const* cppTypeName() const override
    {
        return orbis::host_extensions::findNumericClass(type_.scalarClass)->nativeType;
    }

    bool checkValue(orbis::COSValue value, bool) const override { return value.scalarClass() == type_.scalarClass; }
    bool isEqualValue(orbis::COSValue a, orbis::COSValue b) const override { return compareValues(a, b) == equal; }

    std::uint32_t compareValues(orbis::COSValue a, orbis::COSValue b) const override
    {
        if (!checkValue(a, true) || !checkValue(b, true))
            return a.isEmpty() && b.isEmpty() ? equal : unordered;
        return orbis::host_extensions::visitNumericClass(
            type_.scalarClass, [&]<class T>(T) { return orderOf(a.scalar<T>(), b.scalar<T>()); });
    }

    std::size_t valueByteSize(orbis::COSValue) const override
    {
        return orbis::host_extensions::findNumericClass(type_.scalarClass)->size;
    }

    orbis::COSValue copyValue(orbis::COSValue value) const override { return value; }
    void releaseValue(orbis::COSValue) const override {}

private:
    TypeReference type_;
};

class ArrayType final : public orbis::COSDataType {
public:
    explicit ArrayType(TypeReference const& type) : type_(type) {}

    char const* scalarTypeName() const override { return type_.name->text; }
    char const* cppTypeName() const override { return "hvArray*"; }
    int typeKind() const override { return type_.kind == TypeKind::Named ? objectTypeKind : arrayTypeKind; }
    char const* typeCategory() const override { return type_.kind == TypeKind::Named ? "Class" : "Array"; }
    bool slot11Flag() const override { return false; }
    bool canContainInterfaces() const override { return type_.kind == TypeKind::Any || type_.kind == TypeKind::Named; }
    bool isVELMARAArrayType() const override { return true; }

    bool isEqualValue(orbis::COSValue a, orbis::COSValue b) const override { return areEqual(a.array(), b.array()); }

    std::uint32_t compareValues(orbis::COSValue a, orbis::COSValue b) const override
    {
        if (isEqualValue(a, b))
            return equal;
        if (type_.kind != TypeKind::Text || !a.array() || !b.array())
            return unordered;
        return Array::of(a.array())->text() < Array::of(b.array())->text() ? before : after;
    }

    std::size_t valueByteSize(orbis::COSValue value) const override { return byteSize(value.array()); }

    orbis::COSValue copyValue(orbis::COSValue value) const override
    {
        if (!value.array())
            return value;
        hvArray* const copy = hvCreateDeepCopy(value.array());
        hvSetArrayScope(copy, 0);
        return orbis::COSValue(copy);
    }

    void releaseValue(orbis::COSValue value) const override { hvDestroyArray(value.array()); }

private:
    TypeReference type_;
};

/// Values of another type, or an empty slot. The other type is looked up each time, because it can come and go.
class OptionalType final : public orbis::COSDataType {
public:
    explicit OptionalType(TypeReference const& type) : type_(type) {}

    char const* scalarTypeName() const override { return type_.name->text; }
    char const* cppTypeName() const override { return "COSValue"; }
    int typeKind() const override { return arrayTypeKind; }
    char const* typeCategory() const override { return "Optional"; }
    bool slot11Flag() const override { return false; }
    bool canContainInterfaces() const override { return inner() && inner()->canContainInterfaces(); }
    bool isEqualValue(orbis::COSValue a, orbis::COSValue b) const override { return compareValues(a, b) == equal; }

    std::uint32_t compareValues(orbis::COSValue a, orbis::COSValue b) const override
    {
        if (a.isEmpty() || b.isEmpty())
            return a.isEmpty() && b.isEmpty() ? equal : unordered;
        return inner() ? inner()->compareValues(a, b) : unordered;
    }

    std::size_t valueByteSize(orbis::COSValue value) const override
    {
        return value.isEmpty() || !inner() ? 0 : inner()->valueByteSize(value);
    }

    orbis::COSValue copyValue(orbis::COSValue value) const override
    {
        return value.isEmpty() || !inner() ? orbis::COSValue() : inner()->copyValue(value);
    }

    void releaseValue(orbis::COSValue value) const override
    {
        if (orbis::COSDataType* const type = value.isEmpty() ? nullptr : inner())
            type->releaseValue(value);
    }

private:
    orbis::COSDataType* inner() const { return Machine::required().types().obtain(type_.value->name); }

    TypeReference type_;
};

} // namespace

orbis::COSDataType* createBuiltInType(TypeReference const& type)
{
    if (type.kind == TypeKind::Optional)
        return new OptionalType(type);
    if (type.kind == TypeKind::Scalar)
        return new ScalarType(type);
    return new ArrayType(type);
}

} // namespace velmara
