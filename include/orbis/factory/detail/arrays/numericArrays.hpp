#pragma once

#include "orbis/factory/base/export.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/hvArray.hpp"
#include "orbis/COSValue.hpp"

#include <span>
#include <vector>

namespace orbis::factory::detail {

/// Throws the error of an array of another class, which the host should have refused.
[[noreturn]] ORBIS_FACTORY_API void throwOtherClass();

/// Returns the elements of an array of the class of `T`, in column order; none for null. They are valid as long as the
/// array.
template <COSScalar T>
std::span<T const> elementsOf(hvArray_tag const* array)
{
    if (!array)
        return {};
    if (array->_get_class_id_non_trivial() != COSValue::classOf<T>())
        throwOtherClass();
    return {static_cast<T const*>(host_extensions::getData(array)), array->get_number_of_elements()};
}

/// Returns a new row of the values, owned by the caller.
template <COSScalar T>
hvArray* createRow(std::span<T const> values)
{
    return host_extensions::createMatrix(1, values.size(), COSValue::classOf<T>(), values.data());
}

/// `std::vector<bool>` is packed, so its values are written one by one.
ORBIS_FACTORY_API hvArray* createRow(std::vector<bool> const& values);

} // namespace orbis::factory::detail
