#pragma once

#include "orbis/factory/base/argumentErrors.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"

#include <cstddef>
#include <string_view>

namespace orbis::factory::detail {

/// A new column of cells with the character arrays that `makeText` makes of the texts, in their order.
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

/// Gives `append` the texts of a cell array of character arrays, in order, after their number to `reserve`. Throws the
/// errors of arrays that are no cells (`errorMustBeCellArray`) and of cells that hold no text (`errorMustBeString`).
template <class Reserve, class Append>
void readTextCells(hvArray const* cells, Reserve reserve, Append append)
{
    if (cells->_get_class_id_non_trivial() != hvCELL_CLASS)
        errorMustBeCellArray();
    std::size_t const count = cells->get_number_of_elements();
    reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        hvArray const* const cell = additions::getCell(cells, i);
        if (!cell || cell->_get_class_id_non_trivial() != hvCHAR_CLASS)
            errorMustBeString(i);
        auto const* const text = static_cast<char16_t const*>(additions::getData(cell));
        append(std::u16string_view(text, cell->get_number_of_elements()));
    }
}

} // namespace orbis::factory::detail
