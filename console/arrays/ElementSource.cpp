#include "arrays/ElementSource.hpp"

#include "handles/HostArray.hpp"
#include "handles/Proxy.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "values/ArrayElement.hpp"
#include "values/HostText.hpp"
#include "values/TableElements.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "string_matrix/string_matrix.hpp"

#include <algorithm>
#include <optional>

namespace velmara::console {

namespace {

/// The characters of a Lua string or of a single host string; nothing for other values.
std::optional<std::u16string> readCharacters(lua_State* L, int index)
{
    if (lua_type(L, index) == LUA_TSTRING)
        return hostTextAt(L, index);
    hvArray_tag const* const array = testHostArray(L, index);
    if (!Tarnwick::String::isString(array) || array->get_number_of_elements() != 1)
        return std::nullopt;
    auto const text = stringAt(*array, 0);
    if (!text)
        fail("element", "a missing string has no characters");
    return std::u16string(*text);
}

/// True when the characters are one value: for elements that are whole texts.
bool isTextOf(hvArray_tag const& array, hvClassID classID)
{
    return array._get_class_id_non_trivial() == hvCHAR_CLASS && (classID == hvSTRING_CLASS || classID == hvCELL_CLASS);
}

[[noreturn]] void failLength(std::size_t row, std::size_t length, std::size_t expected)
{
    fail("table", "all rows have one length: that of row " + std::to_string(row + 1) + " is " + std::to_string(length) +
                      ", that of those before it " + std::to_string(expected));
}

} // namespace

ElementSource::ElementSource(lua_State* L, int index, hvClassID classID, ArrayStack::Frame& frame)
    : L_(L),
      index_(index)
{
    if (lua_isnoneornil(L, index))
        return;
    std::optional<std::u16string> const text = classID == hvCHAR_CLASS ? readCharacters(L, index) : std::nullopt;
    if (text)
        readArray(frame.push(ArrayPtr(orbis::host_extensions::createText(*text))));
    else if (lua_istable(L, index) && proxyName(L, index).empty())
        readTable(classID, frame);
    else if (isHostArray(L, index) && !isTextOf(*checkHostArray(L, index), classID))
        readArray(frame.push(ArrayPtr(hvCreateSharedDataCopy(checkHostArray(L, index)))));
    else {
        kind_ = Kind::Single;
        shape_ = {1, 1};
    }
}

void ElementSource::readArray(hvArray_tag const* array)
{
    kind_ = Kind::Array;
    array_ = array;
    shape_ = {array->get_dimensions()[0], array->get_dimensions()[1]};
}

void ElementSource::readTable(hvClassID classID, ArrayStack::Frame& frame)
{
    Elements const elements = elementsOf(L_, index_);
    if (elements.count == 0)
        return;
    if (classID == hvCHAR_CLASS && readTexts(elements.count, frame))
        return;
    kind_ = Kind::Sequence;
    shape_ = {1, elements.count};
    if (elements.are(Elements::Tables) && classID != hvCELL_CLASS)
        readRows(elements.count);
}

void ElementSource::readRows(std::size_t count)
{
    kind_ = Kind::Rows;
    visitSequence(L_, index_, count, [&](std::size_t row) {
        std::size_t const columns = elementsOf(L_, lua_gettop(L_)).count;
        if (row != 0 && columns != shape_.columns)
            failLength(row, columns, shape_.columns);
        shape_ = {count, columns};
    });
}

/// Reads texts of one length as the rows of a character matrix; false when not all are texts.
bool ElementSource::readTexts(std::size_t count, ArrayStack::Frame& frame)
{
    hvArray_tag* characters = nullptr;
    for (std::size_t row = 0; row < count; ++row) {
        lua_rawgeti(L_, index_, static_cast<lua_Integer>(row + 1));
        auto const text = readCharacters(L_, lua_gettop(L_));
        lua_pop(L_, 1);
        if (!text)
            return false;
        if (!characters)
            characters = frame.push(ArrayPtr(orbis::host_extensions::createMatrix(count, text->size(), hvCHAR_CLASS)));
        if (text->size() != characters->get_dimensions()[1])
            failLength(row, text->size(), characters->get_dimensions()[1]);
        auto* const data = static_cast<char16_t*>(orbis::host_extensions::getWritableData(characters));
        for (std::size_t column = 0; column < text->size(); ++column)
            data[column * count + row] = (*text)[column];
    }
    readArray(characters);
    return true;
}

void ElementSource::push(std::size_t position) const
{
    lua_Integer const row = static_cast<lua_Integer>(position % shape_.rows) + 1;
    lua_Integer const column = static_cast<lua_Integer>(position / shape_.rows) + 1;
    switch (kind_) {
    case Kind::Single:
        return lua_pushvalue(L_, index_);
    case Kind::Sequence:
        lua_rawgeti(L_, index_, column);
        return;
    case Kind::Rows:
        lua_rawgeti(L_, index_, row);
        if (!lua_istable(L_, -1))
            fail("table", "the table was changed meanwhile"); // by a finalizer of the script
        lua_rawgeti(L_, -1, column);
        lua_remove(L_, -2);
        return;
    case Kind::Array:
        // Characters as numbers: a lone surrogate has no text.
        if (array_->_get_class_id_non_trivial() == hvCHAR_CLASS)
            return lua_pushinteger(L_, static_cast<char16_t const*>(orbis::host_extensions::getData(array_))[position]);
        return pushElement(L_, array_, position);
    case Kind::Empty:
        return;
    }
}

} // namespace velmara::console
