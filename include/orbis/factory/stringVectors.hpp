#pragma once

#include "orbis/factory/DataTypePolicy.hpp"
#include "orbis/factory/argumentErrors.hpp"
#include "orbis/factory/detail/NewArray.hpp"
#include "orbis/factory/detail/narrowText.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"
#include "string_matrix/string_matrix.hpp"

#include <string>
#include <vector>

namespace orbis::factory {

/// `std::vector<std::string>`, in UTF-8. To the host it is a column of cells. From the host it is a string array, whose
/// missing elements are left out, or a cell array of character arrays; null is an empty vector. Texts keep zeros in
/// them, both ways.
///
/// `fromHost` throws "orbis_factory:orbis_factory:must_be_cell_array" for other arrays, and ":must_be_string" for a
/// cell that is empty or of another class.
template <>
struct HostDataType<std::vector<std::string>> {
    static constexpr char const* name = "OrbisFactoryString vector";

    static hvArray* toHost(std::vector<std::string> const& strings)
    {
        detail::NewArray cells(hvCreateCellMatrix(strings.size(), 1));
        std::size_t index = 0;
        for (std::string const& string : strings) {
            detail::NewArray text(makeText(string));
            hvSetCell(cells.get(), index++, text.get());
            text.release();
        }
        return cells.release();
    }

    static std::vector<std::string> fromHost(hvArray* value)
    {
        std::vector<std::string> strings;
        if (Tarnwick::String::isString(value))
            readStrings(Tarnwick::String::getString(value), strings);
        else if (value)
            readCells(value, strings);
        return strings;
    }

private:
    /// The host reads up to a zero: when that is not the whole of an ASCII text, there may be one in it.
    static hvArray* makeText(std::string const& string)
    {
        detail::NewArray text(hvCreateString(string.c_str()));
        if (text.get()->get_number_of_elements() == string.size() || string.find('\0') == string.npos) [[likely]]
            return text.release();
        return additions::createText(fl::i18n::to_ustring(string));
    }

    static void readStrings(Tarnwick::StringArray const& array, std::vector<std::string>& strings)
    {
        std::size_t const count = array.getNumberOfElements();
        strings.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            if (char16_t const* const text = array.getText(i))
                detail::appendNarrow({text, array.getLength(i)}, strings);
        }
    }

    static void readCells(hvArray const* array, std::vector<std::string>& strings)
    {
        if (array->_get_class_id_non_trivial() != hvCELL_CLASS)
            errorMustBeCellArray();
        std::size_t const count = array->get_number_of_elements();
        strings.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            hvArray const* const cell = additions::getCell(array, i);
            if (!cell || cell->_get_class_id_non_trivial() != hvCHAR_CLASS)
                errorMustBeString(i);
            auto const* const text = static_cast<char16_t const*>(additions::getData(cell));
            detail::appendNarrow({text, cell->get_number_of_elements()}, strings);
        }
    }
};

} // namespace orbis::factory
