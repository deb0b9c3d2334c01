#pragma once

#include "orbis/factory/base/argumentErrors.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"

#include <cstddef>
#include <string_view>

namespace orbis::factory::detail {

/// Returns a new column of cells, owned by the caller, with one character array, created by `makeText`, for each text.
template <class Texts, class MakeText>
hvArray* makeTextCells(Texts const& texts, MakeText makeText)
{
    NewArray cells(hvCreateCellMatrix(texts.size(), 1));
    std::size_t index = 0;
    for (auto const& text : texts) {
        NewArray characters(makeText(text));
        hvSetCell(cells.get(), index++, characters.get());
        characters.release();
    }
    return cells.release();
}

/// Passes the number of cells of a cell array of character arrays to `reserve`, then their texts, in order, to
/// `append`. Throws `errorMustBeCellArray` for other arrays and `errorMustBeString` for a cell without text.
template <class Reserve, class Append>
void readTextCells(hvArray const* cells, Reserve reserve, Append append)
{
    if (cells->_get_class_id_non_trivial() != hvCELL_CLASS)
        errorMustBeCellArray();
    std::size_t const count = cells->get_number_of_elements();
    reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        hvArray const* const cell = host_extensions::getCell(cells, i);
        if (!cell || cell->_get_class_id_non_trivial() != hvCHAR_CLASS)
            errorMustBeString(i);
        auto const* const text = static_cast<char16_t const*>(host_extensions::getData(cell));
        append(std::u16string_view(text, cell->get_number_of_elements()));
    }
}

} // namespace orbis::factory::detail
