#include "orbis/COSInterfacePtr.hpp"

#include "arrays/arrayArguments.hpp"
#include "objects/Object.hpp"

#include "orbis/objectArrays.hpp"

#include <utility>

namespace orbis {

namespace {

using velmara::Object;

void acquire(COSInterface* object, COSReferenceType type)
{
    if (!object)
        return;
    if (type == COSReferenceType::Strong)
        static_cast<Object*>(object)->addExternal();
    else
        static_cast<Object*>(object)->addWeak();
}

void release(COSInterface* object, COSReferenceType type)
{
    if (!object)
        return;
    if (type == COSReferenceType::Strong)
        static_cast<Object*>(object)->removeExternal();
    else
        static_cast<Object*>(object)->removeWeak();
}

} // namespace

COSInterfacePtr::COSInterfacePtr(COSInterface* object) : object_(object), type_(COSReferenceType::Strong)
{
    acquire(object_, COSReferenceType::Strong);
}

COSInterfacePtr::COSInterfacePtr(COSInterfacePtr const& other) : object_(other.object_), type_(other.type_)
{
    acquire(object_, type_);
}

COSInterfacePtr& COSInterfacePtr::operator=(COSInterfacePtr const& other) // NOLINT(bugprone-unhandled-self-assignment)
{
    acquire(other.object_, other.type_);
    // Last, because finalizing the object runs native code, which may use this handle.
    release(std::exchange(object_, other.object_), std::exchange(type_, other.type_));
    return *this;
}

COSInterfacePtr::~COSInterfacePtr()
{
    release(object_, type_);
}

COSInterface* COSInterfacePtr::livingObject() const
{
    return object_ && static_cast<Object*>(object_)->isFinalized() ? nullptr : object_;
}

// The interface has both forms of these two.
COSInterface* COSInterfacePtr::operator->() // NOLINT(readability-make-member-function-const)
{
    return *this;
}

COSInterface const* COSInterfacePtr::operator->() const
{
    return *this;
}

COSInterface& COSInterfacePtr::operator*() // NOLINT(readability-make-member-function-const)
{
    return *static_cast<COSInterface*>(*this);
}

COSInterface const& COSInterfacePtr::operator*() const
{
    return *static_cast<COSInterface*>(*this);
}

void COSInterfacePtr::setReferenceType(COSReferenceType type)
{
    // A weak handle whose object is finalized becomes an empty strong one.
    COSInterface* const held = *this;
    acquire(held, type);
    release(std::exchange(object_, held), std::exchange(type_, type));
}

// These two are here so that the handle's constructor is inlined into them: most calls use one.

COSInterfacePtr omGetArrayElement(hvArray_tag const* array, std::size_t index)
{
    return velmara::requireObject(array, index).objects()[index];
}

COSInterfacePtr cosiGetArrayElement(hvArray_tag const* array, std::size_t index)
{
    return omGetArrayElement(array, index);
}

} // namespace orbis
