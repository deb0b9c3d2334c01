#include "arrays/arrayArguments.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"

using namespace velmara;

hvArray* matrix::detail::noninlined::hv_array_api::hvCreateCellMatrix(std::size_t m, std::size_t n)
{
    return Array::create(hvCELL_CLASS, m, n);
}

void matrix::detail::noninlined::hv_array_api::hvSetCell(hvArray_tag* cells, std::size_t index, hvArray_tag* value)
{
    requireCell(cells, index).setCell(index, Array::of(value));
}

hvArray_tag const* orbis::host_extensions::getCell(hvArray_tag const* cells, std::size_t index)
{
    return requireCell(cells, index).cells()[index];
}
