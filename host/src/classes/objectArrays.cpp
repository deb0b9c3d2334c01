#include "orbis/objectArrays.hpp"

#include "arrays/arrayArguments.hpp"
#include "classes/classHierarchy.hpp"
#include "errors/hostError.hpp"
#include "objects/Object.hpp"

namespace orbis {

using namespace velmara;

namespace {

Object* objectOf(COSInterfacePtr const& handle)
{
    return static_cast<Object*>(static_cast<COSInterface*>(handle));
}

[[gnu::noinline]] void requireClass(Array const& array, Name className)
{
    if (!isSubclass(className, array.objectClass()))
        throwHostError("VELMARA:array", "wrongClass", {className->string(), std::string(array.className())});
}

/// Kept out of the way of the one object of a new array.
[[gnu::noinline]] void setElement(hvArray_tag* array, std::size_t index, COSInterfacePtr const& handle)
{
    Array& objects = requireObject(array, index);
    Object* const object = objectOf(handle);
    if (object && object->className() != objects.objectClass())
        requireClass(objects, object->className());
    objects.setObject(index, object);
}

} // namespace

hvArray* omCreateORBISScalar(COSInterfacePtr const& object)
{
    Object* const held = objectOf(object);
    if (!held)
        return Array::createObjects(intern(""), 0, 0);
    Array* const array = Array::createObjects(held->className(), 1, 1);
    array->setObject(0, held);
    return array;
}

hvArray* omCreateORBISMatrix(std::size_t m, std::size_t n, COSNameID const& className)
{
    return Array::createObjects(className.interned(), m, n);
}

void omSetArrayElement(hvArray_tag* array, std::size_t index, COSInterfacePtr const& object)
{
    if (array && object.getReferenceType() == COSReferenceType::Strong) [[likely]] {
        Object* const held = objectOf(object);
        if (held && Array::of(array)->setFirstObject(index, *held))
            return;
    }
    setElement(array, index, object);
}

bool omIsORBIS(hvArray_tag const* array)
{
    return array && Array::of(array)->classID() == hvOBJECT_CLASS;
}

void omSetClassOfHeterogeneousArray(hvArray_tag* array)
{
    Array& objects = requireObjects(array);
    if (Name const common = commonClass(objects.objects()))
        objects.setObjectClass(common);
}

} // namespace orbis
