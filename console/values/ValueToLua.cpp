#include "values/ValueToLua.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Sentinel.hpp"
#include "lua/Table.hpp"
#include "values/ArrayElement.hpp"
#include "values/FunctionValue.hpp"
#include "values/HostText.hpp"

#include "host_extensions/functionValues.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

namespace velmara::console {

namespace {

using orbis::host_extensions::findNumericClass;

std::size_t rowsOf(hvArray_tag const& array)
{
    return array.get_dimensions()[0];
}

std::size_t columnsOf(hvArray_tag const& array)
{
    return array.get_dimensions()[1];
}

/// A column of numbers or booleans is a sequence of rows, because a sequence of them is a row; of others it is a list.
bool isList(hvArray_tag const& array)
{
    bool const areScalars = findNumericClass(array._get_class_id_non_trivial()) != nullptr;
    return rowsOf(array) == 1 || (!areScalars && columnsOf(array) == 1);
}

/// The classes that tables of numbers and of booleans become.
bool isOfTables(hvClassID classID)
{
    return classID == hvDOUBLE_CLASS || classID == hvLOGICAL_CLASS;
}

/// Pushes all elements, given by their linear index: a sequence for a list, else a sequence of rows.
template <class PushAt>
void pushElements(lua_State* L, hvArray_tag const& array, PushAt const& pushAt)
{
    std::size_t const rows = rowsOf(array);
    std::size_t const count = array.get_number_of_elements();
    if (count == 0 || isList(array))
        pushSequence(L, count, pushAt);
    else
        pushSequence(L, rows, [&](std::size_t row) {
            pushSequence(L, columnsOf(array), [&](std::size_t column) { pushAt(column * rows + row); });
        });
}

/// The characters of one row, as a string.
void pushRow(lua_State* L, hvArray_tag const& characters, std::size_t row)
{
    if (rowsOf(characters) <= 1)
        pushHostText(L, textOf(characters));
    else
        pushHostText(L, rowOf(characters, row));
}

void pushCells(lua_State* L, hvArray_tag const& cells, Conversion& conversion)
{
    Conversion::Level const level(conversion, "cells");
    pushElements(L, cells, [&](std::size_t i) {
        if (hvArray_tag const* const cell = orbis::host_extensions::getCell(&cells, i))
            pushContent(L, *cell, conversion);
        else
            pushNull(L);
    });
}

} // namespace

void pushValue(lua_State* L, hvArray_tag const* array, ValueShape shape)
{
    if (!array)
        return lua_pushnil(L);
    if (shape == ValueShape::List)
        return pushHostArray(L, *array);
    hvClassID const classID = array->_get_class_id_non_trivial();
    std::size_t const count = array->get_number_of_elements();
    if (count == 1 && findNumericClass(classID)) // needs a slot only, which is there
        return pushElement(L, array, 0);
    luaL_checkstack(L, 12, nullptr);
    bool const isNone = rowsOf(*array) == 0 && columnsOf(*array) == 0;
    if (shape == ValueShape::Optional && isNone)
        return lua_pushnil(L);
    if (classID == hvOBJECT_CLASS && isNone)
        return lua_pushnil(L);
    if (classID == hvOBJECT_CLASS && count == 1)
        return pushObject(L, array, 0);
    if (classID == orbis::host_extensions::functionClass)
        return pushFunction(L, *array);
    if (classID == hvCHAR_CLASS && (isNone || (rowsOf(*array) == 1 && count != 0)))
        return pushRow(L, *array, 0);
    if ((classID == hvDOUBLE_CLASS && isNone) || (isOfTables(classID) && count != 0))
        return pushElements(L, *array, [&](std::size_t i) { pushElement(L, array, i); });
    pushHostArray(L, *array);
}

void pushContent(lua_State* L, hvArray_tag const& array, Conversion& conversion)
{
    luaL_checkstack(L, 12, nullptr);
    hvClassID const classID = array._get_class_id_non_trivial();
    std::size_t const count = array.get_number_of_elements();
    conversion.add(count, sizeof(lua_Number) * 2);
    if (classID == hvCELL_CLASS)
        pushCells(L, array, conversion);
    else if (classID == hvCHAR_CLASS && rowsOf(array) <= 1)
        pushRow(L, array, 0);
    else if (classID == hvCHAR_CLASS)
        pushSequence(L, rowsOf(array), [&](std::size_t row) { pushRow(L, array, row); });
    else if (count == 1)
        pushElement(L, &array, 0);
    else
        pushElements(L, array, [&](std::size_t i) { pushElement(L, &array, i); });
}

} // namespace velmara::console
