#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/hvArray.hpp"
#include "orbis/COSValue.hpp"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <vector>

namespace orbis::factory::detail {

/// Returns the elements of an array of the class of `T`, in column order; none for null. They are valid as long as the
/// array.
template <COSScalar T>
std::span<T const> elementsOf(hvArray_tag const* array)
{
    if (!array)
        return {};
    if (array->_get_class_id_non_trivial() != COSValue::classOf<T>()) // the host ignored the signature
        throw std::invalid_argument("an array of another numeric class was passed");
    return {static_cast<T const*>(host_extensions::getData(array)), array->get_number_of_elements()};
}

/// Returns a new row of the values, owned by the caller.
template <COSScalar T>
hvArray* createRow(std::span<T const> values)
{
    return host_extensions::createMatrix(1, values.size(), COSValue::classOf<T>(), values.data());
}

/// `std::vector<bool>` is packed, so its values are written one by one.
inline hvArray* createRow(std::vector<bool> const& values)
{
    NewArray row(host_extensions::createMatrix(1, values.size(), hvLOGICAL_CLASS));
    std::copy(values.begin(), values.end(), static_cast<bool*>(host_extensions::getWritableData(row.get())));
    return row.release();
}

} // namespace orbis::factory::detail
