#include "ValueToLua.hpp"

#include "HostArray.hpp"
#include "NumericClass.hpp"
#include "ObjectBinding.hpp"
#include "ScriptError.hpp"
#include "ValueToHost.hpp"

#include "additions/additions.hpp"
#include "libhv/libhv.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <algorithm>
#include <limits>
#include <string>

namespace velmara::console {

namespace {

std::size_t rowsOf(hvArray_tag const& array)
{
    return array.get_dimensions()[0];
}

std::size_t columnsOf(hvArray_tag const& array)
{
    std::size_t const rows = rowsOf(array);
    return rows == 0 ? 0 : array.get_number_of_elements() / rows;
}

int sizeHint(std::size_t count)
{
    return static_cast<int>(std::min<std::size_t>(count, std::numeric_limits<int>::max()));
}

/// Pushes a sequence of what `pushElement` pushes for 0 to `count` - 1.
template <class PushElement>
void pushSequence(lua_State* L, std::size_t count, PushElement const& pushElement)
{
    lua_createtable(L, sizeHint(count), 0);
    for (std::size_t i = 0; i < count; ++i) {
        pushElement(i);
        lua_rawseti(L, -2, static_cast<lua_Integer>(i + 1));
    }
}

/// Pushes all elements, given by their linear index: a sequence for one row, else a sequence of rows.
template <class PushElement>
void pushElements(lua_State* L, hvArray_tag const& array, PushElement const& pushElement)
{
    std::size_t const rows = rowsOf(array);
    std::size_t const columns = columnsOf(array);
    if (columns == 0)
        lua_newtable(L);
    else if (rows == 1)
        pushSequence(L, columns, pushElement);
    else
        pushSequence(L, rows, [&](std::size_t row) {
            pushSequence(L, columns, [&](std::size_t column) { pushElement(column * rows + row); });
        });
}

/// The same, but one element alone is pushed as it is.
template <class PushElement>
void pushElementOrElements(lua_State* L, hvArray_tag const& array, PushElement const& pushElement)
{
    if (array.get_number_of_elements() == 1)
        pushElement(0);
    else
        pushElements(L, array, pushElement);
}

template <class T>
constexpr bool fitsInteger(T value)
{
    if constexpr (std::is_same_v<T, std::uint64_t>)
        return value <= static_cast<std::uint64_t>(std::numeric_limits<lua_Integer>::max());
    else
        return true;
}

template <class T>
void pushNumbers(lua_State* L, hvArray_tag const& array)
{
    auto const* data = static_cast<T const*>(orbis::additions::getData(&array));
    if (!std::all_of(data, data + array.get_number_of_elements(), fitsInteger<T>))
        return pushHostArray(L, ArrayPtr(hvCreateSharedDataCopy(&array)));
    pushElementOrElements(L, array, [&](std::size_t i) {
        if constexpr (std::is_floating_point_v<T>)
            lua_pushnumber(L, data[i]);
        else
            lua_pushinteger(L, static_cast<lua_Integer>(data[i]));
    });
}

void pushBooleans(lua_State* L, hvArray_tag const& array)
{
    auto const* data = static_cast<bool const*>(orbis::additions::getData(&array));
    pushElementOrElements(L, array, [&](std::size_t i) { lua_pushboolean(L, data[i]); });
}

void pushCharacters(lua_State* L, hvArray_tag const& array)
{
    auto const* data = static_cast<char16_t const*>(orbis::additions::getData(&array));
    std::size_t const rows = rowsOf(array);
    std::size_t const columns = columnsOf(array);
    auto const pushRow = [&](std::size_t row) {
        std::u16string text(columns, u'\0');
        for (std::size_t column = 0; column < columns; ++column)
            text[column] = data[column * rows + row];
        pushText(L, fl::i18n::to_string(text));
    };
    if (rows <= 1)
        pushRow(0);
    else
        pushSequence(L, rows, pushRow);
}

void pushCells(lua_State* L, hvArray_tag const& cells, int depth)
{
    if (depth >= deepestNesting)
        fail("cell", "the cells are nested deeper than " + std::to_string(deepestNesting) + " levels");
    pushElements(L, cells, [&](std::size_t i) {
        hvArray_tag const* cell = orbis::additions::getCell(&cells, i);
        pushValue(L, cell, depth + 1);
        if (lua_isnil(L, -1)) {
            lua_pop(L, 1);
            pushNull(L);
        }
    });
}

void pushObjects(lua_State* L, hvArray_tag const& array)
{
    if (array.get_number_of_elements() == 0)
        return lua_pushnil(L);
    if (array.get_number_of_elements() == 1)
        return pushObject(L, &array, 0);
    pushElements(L, array, [&](std::size_t i) {
        pushObject(L, &array, i);
        if (lua_isnil(L, -1)) {
            lua_pop(L, 1);
            pushNull(L);
        }
    });
}

} // namespace

void pushValue(lua_State* L, hvArray_tag const* array, int depth)
{
    luaL_checkstack(L, 8, nullptr);
    if (!array)
        return lua_pushnil(L);
    hvClassID const classID = array->_get_class_id_non_trivial();
    switch (classID) {
    case hvOBJECT_CLASS:
        return pushObjects(L, *array);
    case hvCELL_CLASS:
        return pushCells(L, *array, depth);
    case hvCHAR_CLASS:
        return pushCharacters(L, *array);
    case hvLOGICAL_CLASS:
        return pushBooleans(L, *array);
    default:
        break;
    }
    if (elementSize(classID) == 0)
        return pushHostArray(L, ArrayPtr(hvCreateSharedDataCopy(array)));
    visitNumericClass(classID, [&]<class T>(T*) { pushNumbers<T>(L, *array); });
}

} // namespace velmara::console
