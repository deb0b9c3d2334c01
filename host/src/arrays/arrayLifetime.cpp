#include "libhv/libhv.hpp"

#include "arrays/arrayArguments.hpp"
#include "errors/hostError.hpp"

namespace matrix::detail::noninlined::hv_array_api {

using namespace velmara;

hvArray* hvCreateDeepCopy(hvArray_tag const* array)
{
    return requireArray(array).copyDeep();
}

hvArray* hvCreateSharedDataCopy(hvArray_tag const* array)
{
    return requireArray(array).shareData();
}

hvArray* hvCreateSharedCopyNotOnArrayList(hvArray_tag const* array)
{
    Array* const copy = requireArray(array).shareData();
    copy->setTemporary(false);
    return copy;
}

void hvSetArrayScope(hvArray_tag* array, hvVariableScope scope)
{
    if (scope != 0 && scope != 1)
        throwHostError("VELMARA:array", "scope", {std::to_string(scope)});
    requireArray(array).setTemporary(scope == 1);
}

void hvDestroyArray(hvArray_tag* array)
{
    if (array)
        Array::of(array)->release();
}

void hvDestroy_deleter::operator()(hvArray_tag const* array) const
{
    hvDestroyArray(const_cast<hvArray_tag*>(array));
}

} // namespace matrix::detail::noninlined::hv_array_api
