#include "marshal/StringDataType.hpp"

#include "orbis/factory/detail/arrays/NewArray.hpp"

#include "libkwfl/bad_alloc.hpp"
#include "libut/libut.hpp"

#include <cstdlib>

namespace orbis::factory {

void* StringDataType::operator new(std::size_t size)
{
    void* const storage = std::calloc(1, size);
    if (!storage)
        throw foundation::core::except::bad_alloc();
    return storage;
}

void StringDataType::operator delete(void* storage)
{
    utFree(storage);
}

bool StringDataType::isEqualValue(COSValue a, COSValue b) const
{
    return bothNull(a, b) || (!oneNull(a, b) && holdSame(a.array(), b.array()));
}

COSValue StringDataType::copyValue(COSValue value) const
{
    if (!value.array())
        return COSValue(nullptr);
    detail::NewArray copy(hvCreateDeepCopy(value.array()));
    hvSetArrayScope(copy.get(), 0);
    return COSValue(copy.release());
}

void StringDataType::releaseValue(COSValue value) const
{
    hvDestroyArray(value.array());
}

} // namespace orbis::factory
