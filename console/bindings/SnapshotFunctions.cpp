#include "bindings/SnapshotFunctions.hpp"

#include "handles/HostContext.hpp"
#include "handles/ValueText.hpp"
#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "text/AlignedTable.hpp"

#include "velmara/LiveCounts.hpp"

#include <numeric>
#include <string>

namespace velmara::console {

namespace {

constexpr char const* snapshotType = "velmara.snapshot";

struct Count {
    char const* field;
    std::int64_t SnapshotRow::*member;
};

constexpr Count counts[] = {{"objects", &SnapshotRow::objects},
                            {"bindings", &SnapshotRow::bindings},
                            {"arrays", &SnapshotRow::arrays},
                            {"bytes", &SnapshotRow::bytes}};

/// What waits only for Lua's collector is not alive. What it frees may free more; a chain is followed so far.
void collectGarbage(lua_State* L)
{
    constexpr int maxCollections = 10;
    LiveCounts before;
    for (int i = 0; i < maxCollections && before != liveCounts(); ++i) {
        before = liveCounts();
        lua_gc(L, LUA_GCCOLLECT);
    }
}

/// Arrays that are not recorded are known by their number only.
void addOtherArrays(Snapshot& snapshot)
{
    auto const add = [](std::int64_t sum, SnapshotRow const& row) { return sum + row.arrays; };
    std::int64_t const others =
        liveCounts().arrays - std::accumulate(snapshot.rows.begin(), snapshot.rows.end(), std::int64_t(), add);
    if (others == 0)
        return;
    SnapshotRow& row = snapshot.rows.emplace_back();
    row.className = "(arrays)";
    row.arrays = others;
}

void pushRow(lua_State* L, SnapshotRow const& row)
{
    lua_createtable(L, 0, 6);
    setField(L, "class", row.className);
    setField(L, "line", row.origin);
    for (Count const& count : counts)
        setField(L, count.field, row.*count.member);
}

/// The row on top. A script may have changed it: what is of another type is empty or 0.
SnapshotRow rowOnTop(lua_State* L)
{
    SnapshotRow row;
    if (!lua_istable(L, -1))
        return row;
    row.className = fieldText(L, -1, "class");
    row.origin = fieldText(L, -1, "line");
    for (Count const& count : counts) {
        lua_pushstring(L, count.field);
        lua_rawget(L, -2);
        row.*count.member = lua_tointeger(L, -1);
        lua_pop(L, 1);
    }
    return row;
}

void pushMetatable(lua_State* L);

Snapshot checkSnapshot(lua_State* L, int index)
{
    luaL_checkstack(L, 6, nullptr);
    pushMetatable(L);
    bool const isSnapshot = lua_istable(L, index) && lua_getmetatable(L, index) && lua_rawequal(L, -1, -2);
    if (!isSnapshot)
        fail("noSnapshot", kindAt(L, index) + " is no snapshot");
    lua_pop(L, 2);
    Snapshot snapshot;
    visitSequence(L, index, lua_rawlen(L, index), [&](std::size_t) { snapshot.rows.push_back(rowOnTop(L)); });
    return snapshot;
}

void pushSnapshot(lua_State* L, Snapshot const& snapshot)
{
    luaL_checkstack(L, 6, nullptr);
    pushSequence(L, snapshot.rows.size(), [&](std::size_t i) { pushRow(L, snapshot.rows[i]); });
    pushMetatable(L);
    lua_setmetatable(L, -2);
}

int subtract(lua_State* L)
{
    pushSnapshot(L, checkSnapshot(L, 1) - checkSnapshot(L, 2));
    return 1;
}

int snapshotText(lua_State* L)
{
    AlignedTable::Row headings{"class", "line"};
    for (Count const& count : counts)
        headings.emplace_back(count.field);
    AlignedTable table(headings);
    Snapshot const snapshot = checkSnapshot(L, 1);
    for (SnapshotRow const& row : snapshot.rows) {
        AlignedTable::Row line{row.className, row.origin};
        for (Count const& count : counts)
            line.push_back(std::to_string(row.*count.member));
        table.add(line);
    }
    std::string text;
    for (std::string const& line : table.lines())
        text += (text.empty() ? "" : "\n") + line;
    pushText(L, snapshot.rows.empty() ? "nothing" : text);
    return 1;
}

void pushMetatable(lua_State* L)
{
    pushNamedMetatable(L, snapshotType, [L] {
        setField(L, "__sub", guarded<subtract>);
        setField(L, "__tostring", guarded<snapshotText>);
    });
}

int takeSnapshot(lua_State* L)
{
    collectGarbage(L);
    Snapshot snapshot = HostContext::of(L).hvm().snapshot();
    addOtherArrays(snapshot);
    pushSnapshot(L, snapshot);
    return 1;
}

int recordLines(lua_State* L)
{
    HostContext::of(L).recordLines(lua_isnone(L, 1) || lua_toboolean(L, 1));
    return 0;
}

} // namespace

void bindSnapshotFunctions(lua_State* L)
{
    lua_register(L, "recordlines", guarded<recordLines>);
    lua_register(L, "snapshot", guarded<takeSnapshot>);
}

} // namespace velmara::console
