#pragma once

#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/narrowText.hpp"
#include "orbis/factory/detail/arrays/textCells.hpp"
#include "orbis/factory/types/DataTypePolicy.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "string_matrix/string_matrix.hpp"

#include <string>
#include <vector>

namespace orbis::factory {

/// `std::vector<std::string>`, in UTF-8. Passed to the host as a column of cells. From the host it takes a string
/// array, whose missing elements are omitted, or a cell array of character arrays; null converts to an empty vector.
/// Embedded zeros are kept in both directions.
///
/// `fromHost` throws "orbis_factory:orbis_factory:must_be_cell_array" for other arrays, and ":must_be_string" for a
/// cell that is empty or of another class.
template <>
struct HostDataType<std::vector<std::string>> {
    static constexpr char const* name = "OrbisFactoryString vector"; ///< of the data type

    /// A new 1-by-n cell array, which the caller owns.
    static hvArray* toHost(std::vector<std::string> const& strings) { return detail::makeTextCells(strings, makeText); }

    /// The texts of the cells; `value` stays the caller's.
    static std::vector<std::string> fromHost(hvArray* value)
    {
        std::vector<std::string> strings;
        if (Tarnwick::String::isString(value))
            readStrings(Tarnwick::String::getString(value), strings);
        else if (value)
            detail::readTextCells(
                value, [&](std::size_t count) { strings.reserve(count); },
                [&](std::u16string_view text) { detail::appendNarrow(text, strings); });
        return strings;
    }

private:
    /// `hvCreateString` stops at the first zero. An array as long as the string is complete; so is a shorter one, of
    /// text beyond ASCII, if the string has no zero.
    static hvArray* makeText(std::string const& string)
    {
        detail::NewArray text(hvCreateString(string.c_str()));
        if (text.get()->get_number_of_elements() == string.size() || string.find('\0') == string.npos) [[likely]]
            return text.release();
        return host_extensions::createText(fl::i18n::to_ustring(string));
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
};

} // namespace orbis::factory
