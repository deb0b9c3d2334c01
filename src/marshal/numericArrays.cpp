#include "orbis/factory/detail/arrays/numericArrays.hpp"

#include "orbis/factory/detail/arrays/NewArray.hpp"

#include <algorithm>
#include <stdexcept>

namespace orbis::factory::detail {

void throwOtherClass()
{
    throw std::invalid_argument("an array of another numeric class was passed: the host ignored the signature");
}

hvArray* createRow(std::vector<bool> const& values)
{
    NewArray row(host_extensions::createMatrix(1, values.size(), hvLOGICAL_CLASS));
    std::copy(values.begin(), values.end(), static_cast<bool*>(host_extensions::getWritableData(row.get())));
    return row.release();
}

} // namespace orbis::factory::detail
