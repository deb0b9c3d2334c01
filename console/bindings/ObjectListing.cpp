#include "bindings/ObjectListing.hpp"

#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "text/AlignedTable.hpp"
#include "values/HostCall.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace velmara::console {

namespace {

constexpr std::size_t columnCount = 7;

/// The fields of a record, which are also the headings of the list.
constexpr std::array<char const*, columnCount> fields = {"class",    "owner", "valid", "external",
                                                         "internal", "weak",  "native"};

void pushRecord(lua_State* L, ObjectRecord const& object)
{
    lua_createtable(L, 0, columnCount);
    setField(L, "class", object.className);
    setField(L, "owner", object.owner);
    setField(L, "valid", object.isValid);
    setField(L, "external", object.externalReferences);
    setField(L, "internal", object.internalReferences);
    setField(L, "weak", object.weakReferences);
    setField(L, "native", object.nativeObject != nullptr);
}

/// The fields of the record on top. A script may have changed it: what is no text shows as "yes" or "no".
AlignedTable::Row lineOf(lua_State* L)
{
    AlignedTable::Row line(columnCount);
    if (lua_istable(L, -1))
        std::ranges::transform(fields, line.begin(), [L](char const* field) {
            lua_pushstring(L, field);
            lua_rawget(L, -2);
            bool const isText = lua_isstring(L, -1) != 0;
            std::string text = isText ? lua_tostring(L, -1) : lua_toboolean(L, -1) ? "yes" : "no";
            lua_pop(L, 1);
            return text;
        });
    return line;
}

int listingText(lua_State* L)
{
    luaL_checktype(L, 1, LUA_TTABLE);
    luaL_checkstack(L, 4, nullptr);
    AlignedTable table(AlignedTable::Row(fields.begin(), fields.end()));
    lua_Integer count = 0;
    for (; lua_rawgeti(L, 1, count + 1) != LUA_TNIL; ++count, lua_pop(L, 1))
        table.add(lineOf(L));
    std::string text = count == 0 ? "no objects" : "";
    if (count > 0)
        for (std::string const& line : table.lines())
            text += (text.empty() ? "" : "\n") + line;
    pushText(L, text);
    return 1;
}

} // namespace

int listObjects(lua_State* L)
{
    luaL_checkstack(L, 6, nullptr);
    std::vector<ObjectRecord> const objects = HostContext::of(L).hvm().objects();
    pushSequence(L, objects.size(), [&](std::size_t i) { pushRecord(L, objects[i]); });
    pushNamedMetatable(L, "velmara.objects", [L] { setField(L, "__tostring", guarded<listingText>); });
    lua_setmetatable(L, -2);
    return 1;
}

int listReferences(lua_State* L)
{
    luaL_checkstack(L, 6, nullptr);
    HostCall call(L);
    std::vector<Reference> const references = call.hvm().references(call.share(checkObject(L, 1)));
    pushSequence(L, references.size(), [&](std::size_t i) {
        lua_createtable(L, 0, 2);
        setField(L, "property", references[i].property);
        pushObject(L, references[i].object.get(), 0);
        lua_setfield(L, -2, "object");
    });
    return 1;
}

} // namespace velmara::console
