#include "show/RecordTable.hpp"

#include "handles/Proxy.hpp"
#include "lua/Table.hpp"
#include "show/Summary.hpp"
#include "show/TableLine.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

bool isEmpty(lua_State* L, int index)
{
    if (!lua_istable(L, index))
        return lua_type(L, index) == LUA_TSTRING && textAt(L, index).empty();
    lua_pushnil(L);
    if (lua_next(L, index < 0 ? index - 1 : index) == 0)
        return proxyName(L, index).empty();
    lua_pop(L, 2);
    return false;
}

/// The fields that are not empty in all of the first `count` records: `name` first, the others as they are found.
std::vector<std::string> fieldsOf(lua_State* L, int table, std::size_t count)
{
    std::vector<std::string> names;
    visitSequence(L, table, count, [&](std::size_t) {
        for (std::string const& name : keysOf(L, lua_gettop(L)).texts) {
            pushText(L, name);
            lua_rawget(L, -2);
            if (!isEmpty(L, -1) && std::ranges::find(names, name) == names.end())
                names.insert(name == "name" ? names.begin() : names.end(), name);
            lua_pop(L, 1);
        }
    });
    return names;
}

/// The row of the record on top: its number, and those fields.
AlignedTable::Row recordRow(lua_State* L, std::size_t index, std::vector<std::string> const& names)
{
    constexpr std::size_t maxCellWidth = 32;
    AlignedTable::Row row{std::to_string(index + 1)};
    for (std::string const& name : names) {
        pushText(L, name);
        lua_rawget(L, -2);
        std::string text = lua_isnil(L, -1) ? "" : summary(L, -1);
        if (lua_istable(L, -1) && text == "{...}")
            if (std::string const line = tableLine(L, -1, maxCellWidth); !line.empty())
                text = line;
        row.push_back(text);
        lua_pop(L, 1);
    }
    return row;
}

/// Whether the field has one value in all of the first `count` records.
bool isUniform(lua_State* L, int table, std::size_t count, std::string const& name)
{
    bool isSame = true;
    luaL_checkstack(L, 8, nullptr);
    lua_pushnil(L); // the first value
    int const first = lua_gettop(L);
    visitSequence(L, table, count, [&](std::size_t i) {
        pushText(L, name);
        lua_rawget(L, -2);
        if (i == 0)
            lua_copy(L, -1, first);
        isSame = isSame && lua_rawequal(L, -1, first) != 0;
        lua_pop(L, 1);
    });
    lua_pop(L, 1);
    return isSame;
}

} // namespace

bool isOfRecords(lua_State* L, int table)
{
    constexpr std::size_t maxChecked = 200;
    std::size_t const count = std::min<std::size_t>(lua_rawlen(L, table), maxChecked);
    TableKeys const keys = keysOf(L, table);
    bool areRecords = count > 1 && keys.texts.empty() && !keys.hasOthers;
    for (std::size_t i = 1; areRecords && i <= count; ++i) {
        areRecords = lua_rawgeti(L, table, static_cast<lua_Integer>(i)) == LUA_TTABLE && lua_rawlen(L, -1) == 0 &&
                     proxyName(L, -1).empty();
        if (areRecords) {
            TableKeys const names = keysOf(L, lua_gettop(L));
            areRecords = !names.texts.empty() && !names.hasOthers;
        }
        lua_pop(L, 1);
    }
    return areRecords;
}

AlignedTable recordTable(lua_State* L, int table, std::size_t count)
{
    std::vector<std::string> names = fieldsOf(L, table, count);
    std::ranges::stable_partition(names, [&](std::string const& name) { // those that differ tell more
        return name == "name" || !isUniform(L, table, count, name);
    });
    AlignedTable::Row headings{"#"};
    headings.insert(headings.end(), names.begin(), names.end());
    AlignedTable records(headings);
    visitSequence(L, table, count, [&](std::size_t i) { records.add(recordRow(L, i, names)); });
    return records;
}

} // namespace velmara::console
