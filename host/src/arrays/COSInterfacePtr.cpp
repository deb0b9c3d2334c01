#include "orbis/COSInterfacePtr.hpp"

#include "arrays/arrayArguments.hpp"
#include "objects/Object.hpp"

#include "orbis/objectArrays.hpp"

#include <utility>

namespace orbis {

namespace {

using velmara::Object;

void hold(COSInterface* object, COSReferenceType type)
{
    if (!object)
        return;
    if (type == COSReferenceType::Strong)
        static_cast<Object*>(object)->addExternal();
    else
        static_cast<Object*>(object)->addWeak();
}

void letGo(COSInterface* object, COSReferenceType type)
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
    hold(object_, COSReferenceType::Strong);
}

COSInterfacePtr::COSInterfacePtr(COSInterfacePtr const& other) : object_(other.object_), type_(other.type_)
{
    hold(object_, type_);
}

COSInterfacePtr& COSInterfacePtr::operator=(COSInterfacePtr const& other) // NOLINT(bugprone-unhandled-self-assignment)
{
    hold(other.object_, other.type_);
    // The last step, because an object that ends runs native code, which may use this handle.
    letGo(std::exchange(object_, other.object_), std::exchange(type_, other.type_));
    return *this;
}

COSInterfacePtr::~COSInterfacePtr()
{
    letGo(object_, type_);
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
    // A weak handle whose object has ended becomes an empty strong one.
    COSInterface* const held = *this;
    hold(held, type);
    letGo(std::exchange(object_, held), std::exchange(type_, type));
}

// These two stand where the constructor of the handle that they make can stand in them: most calls pass through one.

COSInterfacePtr omGetArrayElement(hvArray_tag const* array, std::size_t index)
{
    return velmara::requireObject(array, index).objects()[index];
}

COSInterfacePtr cosiGetArrayElement(hvArray_tag const* array, std::size_t index)
{
    return omGetArrayElement(array, index);
}

} // namespace orbis
