#include "arrays/arrayArguments.hpp"
#include "errors/hostError.hpp"

#include "host_extensions/host_extensions.hpp"

namespace orbis::host_extensions {

using namespace velmara;

namespace {

[[noreturn, gnu::noinline]] void throwNotNumeric(hvClassID classID)
{
    throwHostError("VELMARA:array", "notNumeric", {std::to_string(classID)});
}

void requirePlain(hvClassID classID)
{
    if (!hasPlainElements(classID)) [[unlikely]]
        throwNotNumeric(classID);
}

} // namespace

hvArray* createMatrix(std::size_t m, std::size_t n, hvClassID classID)
{
    requirePlain(classID);
    return Array::create(classID, m, n);
}

hvArray* createMatrix(std::size_t m, std::size_t n, hvClassID classID, void const* elements)
{
    requirePlain(classID);
    return Array::createCopy(classID, m, n, elements);
}

void const* getData(hvArray_tag const* array)
{
    Array const& matrix = requireArray(array);
    return hasPlainElements(matrix.classID()) ? matrix.elements() : nullptr;
}

void* getWritableData(hvArray_tag* array)
{
    Array& matrix = requireArray(array);
    return hasPlainElements(matrix.classID()) ? matrix.writableElements() : nullptr;
}

} // namespace orbis::host_extensions
