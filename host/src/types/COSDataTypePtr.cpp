#include "orbis/COSDataTypePtr.hpp"

#include "machine/Machine.hpp"
#include "types/TypeRepository.hpp"

#include <utility>

namespace orbis {

COSDataTypePtr::COSDataTypePtr(char const* name) : type_(nullptr)
{
    velmara::Machine* const machine = velmara::Machine::current();
    if (machine && name)
        type_ = machine->types().obtain(velmara::intern(name));
    if (type_)
        type_->getReference();
}

COSDataTypePtr::COSDataTypePtr(COSDataTypePtr const& other) : type_(other.type_)
{
    if (type_)
        type_->getReference();
}

COSDataTypePtr& COSDataTypePtr::operator=(COSDataTypePtr const& other)
{
    COSDataTypePtr copy(other);
    std::swap(type_, copy.type_);
    return *this;
}

COSDataTypePtr::~COSDataTypePtr()
{
    if (type_)
        type_->releaseReference();
}

COSDataTypePtr::operator COSDataType*() const
{
    return type_;
}

COSDataType* COSDataTypePtr::operator->() const
{
    return type_;
}

} // namespace orbis
