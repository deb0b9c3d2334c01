#include "orbis/factory/unicodeStringContainers.hpp"

#include "orbis/factory/argumentErrors.hpp"
#include "orbis/factory/detail/NewArray.hpp"
#include "orbis/factory/extractString.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"

#include <utility>

namespace orbis::factory {

Marshaler<DataTypePolicy>& Marshaler<DataTypePolicy>::operator=(Marshaler const&) = default;

Marshaler<DataTypePolicy>& Marshaler<DataTypePolicy>::operator=(Marshaler&&) = default;

namespace {

template <class Strings>
hvArray* makeCells(Strings const& strings)
{
    detail::NewArray cells(hvCreateCellMatrix(strings.size(), 1));
    std::size_t index = 0;
    for (fl::ustring const& string : strings) {
        detail::NewArray text(hvCreateString_UTF16(string.c_str()));
        hvSetCell(cells.get(), index++, text.get());
        text.release();
    }
    return cells.release();
}

bool isOf(hvArray const* array, hvClassID classID)
{
    return array && array->_get_class_id_non_trivial() == classID;
}

/// The number of cells.
std::size_t requireCells(hvArray const* array)
{
    if (!isOf(array, hvCELL_CLASS))
        errorMustBeCellArray();
    return array->get_number_of_elements();
}

/// Gives `append` the texts of a cell array of character arrays, in order.
template <class Append>
void readCells(hvArray const* cells, Append append)
{
    std::size_t const count = requireCells(cells);
    for (std::size_t i = 0; i < count; ++i) {
        hvArray const* const cell = additions::getCell(cells, i);
        if (!isOf(cell, hvCHAR_CLASS))
            errorMustBeString(i);
        auto const* const text = static_cast<char16_t const*>(additions::getData(cell));
        append(text, cell->get_number_of_elements());
    }
}

} // namespace

hvArray* HostDataType<std::vector<fl::ustring>>::toHost(std::vector<fl::ustring> const& strings)
{
    return makeCells(strings);
}

std::vector<fl::ustring> HostDataType<std::vector<fl::ustring>>::fromHost(hvArray* value)
{
    if (isStringVector(value))
        return extractFromStringVector(value);
    std::vector<fl::ustring> strings;
    if (value) {
        strings.reserve(requireCells(value));
        readCells(value, [&](char16_t const* text, std::size_t size) { strings.emplace_back(text, size); });
    }
    return strings;
}

hvArray* HostDataType<std::set<fl::ustring>>::toHost(std::set<fl::ustring> const& strings)
{
    return makeCells(strings);
}

std::set<fl::ustring> HostDataType<std::set<fl::ustring>>::fromHost(hvArray* value)
{
    std::set<fl::ustring> strings;
    auto const insert = [&](fl::ustring&& text) {
        auto const place = strings.lower_bound(text);
        if (place != strings.end() && *place == text)
            errorNoDuplicates(fl::i18n::to_string(text));
        strings.insert(place, std::move(text));
    };
    if (isStringVector(value)) {
        for (fl::ustring& text : extractFromStringVector(value))
            insert(std::move(text));
    } else if (value) {
        readCells(value, [&](char16_t const* text, std::size_t size) { insert(fl::ustring(text, size)); });
    }
    return strings;
}

} // namespace orbis::factory
