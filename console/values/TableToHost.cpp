#include "values/TableToHost.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "values/ArrayElement.hpp"
#include "values/TableElements.hpp"

#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"

#include <string>
#include <vector>

namespace velmara::console {

namespace {

/// What all rows have in common when they can be the rows of one matrix; a count of 0 when they cannot.
Elements commonRow(lua_State* L, int table, std::size_t count)
{
    Elements common;
    for (std::size_t i = 0; i < count; ++i) {
        lua_rawgeti(L, table, static_cast<lua_Integer>(i + 1));
        if (!textKeysOf(L, lua_gettop(L)).empty()) {
            lua_pop(L, 1);
            return {};
        }
        Elements const row = elementsOf(L, lua_gettop(L));
        lua_pop(L, 1);
        if (i == 0)
            common = row;
        common.kinds &= row.kinds;
        if (row.count != common.count || !common.areScalars())
            return {};
    }
    return common;
}

hvClassID scalarClass(Elements const& elements)
{
    if (elements.are(Elements::Booleans))
        return hvLOGICAL_CLASS;
    if (elements.are(Elements::ExactDoubles))
        return hvDOUBLE_CLASS;
    if (elements.are(Elements::Integers))
        return hvINT64_CLASS;
    fail("table", "fractions and integers beyond 2^53 in one table have no common exact number type");
}

void storeTop(lua_State* L, void* data, hvClassID classID, std::size_t position)
{
    if (classID == hvLOGICAL_CLASS)
        static_cast<bool*>(data)[position] = lua_toboolean(L, -1) != 0;
    else if (classID == hvINT64_CLASS)
        static_cast<std::int64_t*>(data)[position] = lua_tointeger(L, -1);
    else
        static_cast<double*>(data)[position] = lua_tonumber(L, -1);
}

/// Stores the sequence at `table` as row `row` of `rows`.
void storeRow(lua_State* L, int table, hvArray_tag* matrix, std::size_t row, std::size_t rows, std::size_t columns)
{
    hvClassID const classID = matrix->_get_class_id_non_trivial();
    void* data = orbis::host_extensions::getWritableData(matrix);
    visitSequence(L, table, columns, [&](std::size_t column) { storeTop(L, data, classID, column * rows + row); });
}

ArrayPtr matrix(lua_State* L, int table, std::size_t rows, Elements const& row)
{
    ArrayPtr array(orbis::host_extensions::createMatrix(rows, row.count, scalarClass(row)));
    visitSequence(L, table, rows, [&](std::size_t i) { storeRow(L, lua_gettop(L), array.get(), i, rows, row.count); });
    return array;
}

/// Null when the objects have no class in common.
ArrayPtr objectsOf(lua_State* L, int table, std::size_t count)
{
    std::vector<orbis::COSInterfacePtr> objects;
    objects.reserve(count);
    visitSequence(L, table, count,
                  [&](std::size_t) { objects.push_back(orbis::omGetArrayElement(checkObject(L, -1), 0)); });
    return objectRow(objects);
}

ArrayPtr cellRow(lua_State* L, int table, std::size_t count, Conversion& conversion)
{
    conversion.add(count, memoryOfElement(hvCELL_CLASS));
    ArrayPtr cells(hvCreateCellMatrix(1, count));
    visitSequence(L, table, count, [&](std::size_t i) { storeElement(L, lua_gettop(L), cells.get(), i, conversion); });
    return cells;
}

ArrayPtr cellMap(lua_State* L, int table, std::vector<std::string> const& keys, Conversion& conversion)
{
    std::size_t const count = keys.size();
    conversion.add(2 * count, memoryOfElement(hvCELL_CLASS));
    ArrayPtr cells(hvCreateCellMatrix(count, 2));
    for (std::size_t i = 0; i < count; ++i) {
        pushText(L, keys[i]);
        storeElement(L, lua_gettop(L), cells.get(), i, conversion);
        lua_rawget(L, table);
        storeElement(L, lua_gettop(L), cells.get(), count + i, conversion);
        lua_pop(L, 1);
    }
    return cells;
}

} // namespace

ArrayPtr tableToHost(lua_State* L, int index, Conversion& conversion)
{
    Conversion::Level const level(conversion, "tables");
    if (auto const keys = textKeysOf(L, index); !keys.empty())
        return cellMap(L, index, keys, conversion);
    std::vector<double> numbers;
    Elements const elements = elementsOf(L, index, &numbers);
    if (elements.count == 0)
        return ArrayPtr(orbis::host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS));
    if (elements.areScalars()) {
        conversion.add(elements.count, sizeof(double));
        if (elements.are(Elements::ExactDoubles) && numbers.size() == elements.count)
            return ArrayPtr(orbis::host_extensions::createMatrix(1, elements.count, hvDOUBLE_CLASS, numbers.data()));
        ArrayPtr row(orbis::host_extensions::createMatrix(1, elements.count, scalarClass(elements)));
        storeRow(L, index, row.get(), 0, 1, elements.count);
        return row;
    }
    if (elements.are(Elements::Objects))
        if (ArrayPtr row = objectsOf(L, index, elements.count))
            return row;
    if (elements.are(Elements::Tables))
        if (Elements const row = commonRow(L, index, elements.count); row.count > 0) {
            conversion.add(elements.count * row.count, sizeof(double));
            return matrix(L, index, elements.count, row);
        }
    return cellRow(L, index, elements.count, conversion);
}

} // namespace velmara::console
