#include "orbis/factory/types/hvArrayProxy.hpp"
#include "orbis/factory/types/hvArrayReferenceCountedProxy.hpp"
#include "orbis/factory/types/hvConstArrayProxy.hpp"

#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"

namespace orbis::factory {

namespace {

hvArray* scalarOf(COSInterfacePtr const& object)
{
    COSInterface const* const raw = object;
    return raw ? omCreateORBISScalar(object) : nullptr;
}

COSInterfacePtr objectIn(hvArray const* array)
{
    bool const isObject = omIsORBIS(array) && array->get_number_of_elements() == 1;
    return isObject ? omGetArrayElement(array, 0) : COSInterfacePtr(nullptr);
}

hvArray* shared(hvArray* array)
{
    if (array)
        array->add_reference();
    return array;
}

} // namespace

hvArrayProxy::hvArrayProxy(hvArray* array) : array_(array) {}

hvArrayProxy::hvArrayProxy(COSInterfacePtr const& object) : array_(scalarOf(object)) {}

hvArrayProxy::hvArrayProxy(hvArrayProxy const&) = default;

hvArrayProxy& hvArrayProxy::operator=(hvArrayProxy const&) = default;

hvArray* hvArrayProxy::operator()() const
{
    return array_;
}

hvArrayProxy::operator COSInterfacePtr() const
{
    return objectIn(array_);
}

hvConstArrayProxy::hvConstArrayProxy(hvArray const* array) : array_(array) {}

hvConstArrayProxy::hvConstArrayProxy(COSInterfacePtr const& object) : array_(scalarOf(object)) {}

hvConstArrayProxy::hvConstArrayProxy(hvConstArrayProxy const&) = default;

hvConstArrayProxy& hvConstArrayProxy::operator=(hvConstArrayProxy const&) = default;

hvArray const* hvConstArrayProxy::operator()() const
{
    return array_;
}

hvConstArrayProxy::operator COSInterfacePtr() const
{
    return objectIn(array_);
}

hvArrayReferenceCountedProxy::hvArrayReferenceCountedProxy() = default;

hvArrayReferenceCountedProxy::hvArrayReferenceCountedProxy(hvArray* array) : array_(shared(array)) {}

hvArrayReferenceCountedProxy::hvArrayReferenceCountedProxy(hvArrayReferenceCountedProxy const& other)
    : array_(shared(other.array_))
{
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): equal arrays are handled, which includes self-assignment
hvArrayReferenceCountedProxy& hvArrayReferenceCountedProxy::operator=(hvArrayReferenceCountedProxy const& other)
{
    if (array_ == other.array_)
        return *this;
    // Last, because destroying an array of objects runs foreign code, which may destroy `other`.
    hvArray* const held = array_;
    array_ = shared(other.array_);
    hvDestroyArray(held);
    return *this;
}

hvArrayReferenceCountedProxy::~hvArrayReferenceCountedProxy()
{
    hvDestroyArray(array_);
}

bool hvArrayReferenceCountedProxy::operator==(hvArrayReferenceCountedProxy const& other) const
{
    return array_ == other.array_;
}

hvArray* hvArrayReferenceCountedProxy::operator()() const
{
    return array_;
}

} // namespace orbis::factory
