#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"

#include "orbis/COSValue.hpp"

#include <cstddef>

namespace orbis::factory::detail {

/// Returns the array of a value, a new 1-by-1 one for a scalar; null for an empty value. What the value owns passes to
/// the result.
ORBIS_FACTORY_API hvArray_tag* toArray(COSValue const& value);

/// Owner of a new cell array, whose cells are filled one by one.
class NewCells {
public:
    NewCells(std::size_t rows, std::size_t columns) : cells_(hvCreateCellMatrix(rows, columns)) {}

    /// Takes ownership of the array (null allowed).
    void set(std::size_t index, hvArray_tag* array)
    {
        NewArray owned(array);
        hvSetCell(cells_.get(), index, array);
        static_cast<void>(owned.release());
    }

    hvArray_tag* release() { return cells_.release(); }

private:
    NewArray cells_;
};

} // namespace orbis::factory::detail
