#include "show/ValueInspector.hpp"

#include "bindings/ProxyBinding.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "show/RecordTable.hpp"
#include "show/Summary.hpp"
#include "show/TableLine.hpp"
#include "text/CutText.hpp"
#include "text/DisplayWidth.hpp"
#include "values/ValueToHost.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

bool hasTextFunction(lua_State* L, int table)
{
    if (luaL_getmetafield(L, table, "__tostring") == LUA_TNIL)
        return false;
    lua_pop(L, 1);
    return true;
}

int toText(lua_State* L)
{
    luaL_tolstring(L, 1, nullptr);
    return 1;
}

/// What its `__tostring` says of the table; why it fails, if it does.
std::string ownText(lua_State* L, int table)
{
    lua_pushvalue(L, table);
    lua_pushcfunction(L, toText);
    lua_insert(L, -2);
    bool const isText = lua_pcall(L, 1, 1, 0) == LUA_OK;
    if (isError(L, -1) && fieldText(L, -1, "identifier") == interruptionIdentifier)
        lua_error(L); // it is meant for all that the script does
    std::string const text = isText ? std::string(textAt(L, -1)) : firstSentence(errorText(L, -1));
    lua_pop(L, 1);
    return isText ? text : "table (__tostring fails: " + text + ')';
}

bool isOfSequences(lua_State* L, int table)
{
    lua_rawgeti(L, table, 1);
    bool const result = lua_istable(L, -1) && lua_rawlen(L, -1) > 0;
    lua_pop(L, 1);
    return result;
}

/// The array that the host gets for the table, owned by the call: of numbers, of booleans or of objects; null for other
/// tables.
hvArray_tag* arrayOf(HostCall& call, lua_State* L, int table)
{
    constexpr std::size_t maxElements = 1'000'000;
    std::size_t const count = lua_rawlen(L, table);
    if (count == 0 || count > maxElements)
        return nullptr;
    lua_rawgeti(L, table, 1);
    bool const isElement = lua_isboolean(L, -1) || lua_type(L, -1) == LUA_TNUMBER || isObject(L, -1) ||
                           (lua_istable(L, -1) && lua_rawlen(L, -1) <= maxElements);
    lua_pop(L, 1);
    if (!isElement)
        return nullptr;
    try {
        ArrayPtr const array = toHost(L, table);
        return array->_get_class_id_non_trivial() == hvCELL_CLASS ? nullptr : call.share(array.get());
    } catch (Error const&) {
        return nullptr; // what cannot be passed to the host is shown as a table
    }
}

} // namespace

void ValueInspector::show(Place const& place, int index)
{
    luaL_checkstack(L_, 8, nullptr);
    index = lua_absindex(L_, index);
    std::size_t const columns = page_.columnsAfter(place.indent + displayWidth(place.label));
    if (!proxyName(L_, index).empty())
        showPublished(place, index);
    else if (lua_istable(L_, index))
        showTable(place, index);
    else if (isObject(L_, index) && isValidObject(L_, index))
        showShared(place, checkObject(L_, index));
    else if (hvArray_tag* const array = testHostArray(L_, index))
        showShared(place, array);
    else if (lua_type(L_, index) == LUA_TSTRING)
        page_.add(place.indent, place.label + quoteText(textAt(L_, index), columns - 2));
    else
        page_.add(place.indent, place.label + summary(L_, index));
}

/// An array of the script, which may release it meanwhile.
void ValueInspector::showShared(Place const& place, hvArray_tag* array)
{
    HostCall call(L_);
    host_.showArray(place, call.share(array));
}

void ValueInspector::showPublished(Place const& place, int proxy)
{
    std::string const name(proxyName(L_, proxy));
    Hvm& hvm = HostContext::of(L_).hvm();
    NameKind const kind = hvm.lookUp(name);
    if (kind == NameKind::Class && place.depth == 0)
        return host_.showClass(place, hvm.describeClass(name));
    page_.add(place.indent, place.label + ownText(L_, proxy));
    if (kind != NameKind::Package || place.depth > 0)
        return;
    PackageRecord const package = hvm.describePackage(name);
    auto const list = [&](std::string const& content, char const* what) {
        page_.add(place.indent + 2, unqualifiedName(content) + " = " + what);
    };
    for (std::string const& content : package.packages)
        list(content, "package");
    for (std::string const& content : package.classes)
        list(content, "class");
    for (MethodRecord const& function : package.functions)
        list(function.name, "function");
}

void ValueInspector::showTable(Place const& place, int table)
{
    if (hasTextFunction(L_, table)) {
        host_.showText(place, ownText(L_, table), place.label.empty() ? 0 : 2);
        return isError(L_, table) && place.depth < maxShownDepth ? showElements(place, table) : void();
    }
    std::size_t const columns = page_.columnsAfter(place.indent + displayWidth(place.label));
    if (std::string const line = tableLine(L_, table, columns); !line.empty() && !isOfSequences(L_, table))
        return page_.add(place.indent, place.label + line);
    void const* const identity = lua_topointer(L_, table);
    if (std::ranges::find(around_, identity) != around_.end())
        return page_.add(place.indent, place.label + "table (shown above)");
    HostCall call(L_);
    if (hvArray_tag* const array = arrayOf(call, L_, table))
        return host_.showArray(place, array);
    if (isOfRecords(L_, table))
        return showRecords(place, table);
    bool const isDeep = place.depth >= maxShownDepth;
    page_.add(place.indent, place.label + (isDeep ? "table ..." : "table"));
    if (isDeep)
        return;
    around_.push_back(identity);
    showElements(place, table);
    around_.pop_back();
}

void ValueInspector::showRecords(Place const& place, int table)
{
    std::size_t const all = lua_rawlen(L_, table);
    std::size_t const count = std::min(all, maxShownElements(page_, place));
    page_.add(place.indent, place.label + "table of " + std::to_string(all));
    for (std::string const& line : recordTable(L_, table, count).lines(page_.columnsAfter(place.indent + 2)))
        page_.add(place.indent + 2, line);
    if (count < all)
        page_.add(place.indent + 2, moreText(all - count));
}

void ValueInspector::showElements(Place const& place, int table)
{
    TableKeys const keys = keysOf(L_, table);
    auto const showTop = [&](std::string const& label) {
        show({label + " = ", place.indent + 2, place.depth + 1}, -1);
        lua_pop(L_, 1);
    };
    std::size_t const length = lua_rawlen(L_, table);
    std::size_t const count = std::min(length, maxShownElements(page_, place));
    for (std::size_t i = 1; i <= count && !page_.isFull(); ++i) {
        lua_rawgeti(L_, table, static_cast<lua_Integer>(i));
        showTop('[' + std::to_string(i) + ']');
    }
    if (count < length)
        page_.add(place.indent + 2, moreText(length - count));
    for (auto key = keys.texts.begin(); key != keys.texts.end() && !page_.isFull(); ++key) {
        pushText(L_, *key);
        lua_rawget(L_, table);
        showTop(keyText(*key));
    }
    if (keys.hasOthers)
        showOthers(place, table);
}

/// The elements with keys that are neither texts nor of the sequence.
void ValueInspector::showOthers(Place const& place, int table)
{
    auto const length = static_cast<lua_Integer>(lua_rawlen(L_, table));
    for (lua_pushnil(L_); lua_next(L_, table) != 0; lua_pop(L_, 1)) {
        bool const isOfSequence =
            lua_isinteger(L_, -2) && lua_tointeger(L_, -2) >= 1 && lua_tointeger(L_, -2) <= length;
        if (isOfSequence || lua_type(L_, -2) == LUA_TSTRING)
            continue;
        show({'[' + summary(L_, -2) + "] = ", place.indent + 2, place.depth + 1}, -1);
        if (page_.isFull())
            return lua_pop(L_, 2);
    }
}

} // namespace velmara::console
