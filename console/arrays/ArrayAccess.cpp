#include "arrays/ArrayAccess.hpp"

#include "arrays/ArrayMethods.hpp"
#include "arrays/ArraySlices.hpp"
#include "arrays/ArrayText.hpp"
#include "arrays/Shape.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "values/ArrayElement.hpp"

#include "libhv/libhv.hpp"

#include <optional>

namespace velmara::console {

namespace {

[[noreturn]] void throwIndexError(std::string const& given)
{
    fail("index", "an array is indexed with a whole number or {row, column}, not with " + given);
}

/// The one-based index at `index` as a zero-based one; nothing when it is not in 1 to `size`.
std::optional<std::size_t> readIndex(lua_State* L, int index, std::size_t size)
{
    int isInteger = 0;
    lua_Integer const number = lua_type(L, index) == LUA_TNUMBER ? lua_tointegerx(L, index, &isInteger) : 0;
    if (!isInteger)
        throwIndexError(lua_type(L, 2) == LUA_TTABLE ? "a table that holds " + valueText(L, index)
                                                     : valueText(L, index));
    if (number < 1 || static_cast<lua_Unsigned>(number) > size)
        return std::nullopt;
    return static_cast<std::size_t>(number - 1);
}

/// Argument 2 as a zero-based linear index; nothing when it lies outside the array.
std::optional<std::size_t> readPosition(lua_State* L, hvArray_tag const& array)
{
    if (lua_type(L, 2) != LUA_TTABLE)
        return readIndex(L, 2, array.get_number_of_elements());
    if (!proxyName(L, 2).empty())
        throwIndexError(kindAt(L, 2));
    if (lua_rawlen(L, 2) != 2)
        throwIndexError("a table of length " + std::to_string(lua_rawlen(L, 2)));
    std::size_t const* const sizes = array.get_dimensions();
    lua_rawgeti(L, 2, 1);
    lua_rawgeti(L, 2, 2);
    auto const row = readIndex(L, -2, sizes[0]);
    auto const column = readIndex(L, -1, sizes[1]);
    lua_pop(L, 2);
    return row && column ? std::optional(*column * sizes[0] + *row) : std::nullopt;
}

/// Holds the array of cells meanwhile: a finalizer of the script may run, and write to it or release it.
void pushHeldElement(lua_State* L, hvArray_tag const* array, std::size_t index)
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    if (array->_get_class_id_non_trivial() == hvCELL_CLASS)
        array = frame.push(ArrayPtr(hvCreateSharedDataCopy(array)));
    pushElement(L, array, index);
}

int next(lua_State* L)
{
    hvArray_tag const* const array = checkHostArray(L, 1);
    lua_Integer const number = luaL_checkinteger(L, 2);
    if (number < 0 || static_cast<lua_Unsigned>(number) >= array->get_number_of_elements()) {
        lua_pushnil(L);
        return 1;
    }
    lua_pushinteger(L, number + 1);
    pushHeldElement(L, array, static_cast<std::size_t>(number));
    return 2;
}

int readArray(lua_State* L)
{
    hvArray_tag const* const array = checkHostArray(L, 1);
    switch (lua_type(L, 2)) {
    case LUA_TSTRING:
        pushArrayMethod(L);
        return 1;
    case LUA_TUSERDATA:
        return readSlice(L);
    default:
        break;
    }
    if (auto const position = readPosition(L, *array))
        pushHeldElement(L, array, *position);
    else
        lua_pushnil(L);
    return 1;
}

int writeArray(lua_State* L)
{
    if (lua_type(L, 2) == LUA_TUSERDATA)
        return writeSlice(L);
    hvArray_tag* const array = checkHostArray(L, 1);
    auto const position = readPosition(L, *array);
    if (!position)
        fail("index", "the index lies outside the array, which is " + shapeText(*array) + " and keeps its size");
    Conversion conversion;
    storeElement(L, 3, array, *position, conversion);
    return 0;
}

int countElements(lua_State* L)
{
    lua_pushinteger(L, static_cast<lua_Integer>(checkHostArray(L, 1)->get_number_of_elements()));
    return 1;
}

int iterateArray(lua_State* L)
{
    checkHostArray(L, 1);
    lua_pushcfunction(L, guarded<next>);
    lua_pushvalue(L, 1);
    lua_pushinteger(L, 0);
    return 3;
}

int compareArrays(lua_State* L)
{
    hvArray_tag const* a = testHostArray(L, 1);
    hvArray_tag const* b = testHostArray(L, 2);
    lua_pushboolean(L, a && b && isEqual(a, b));
    return 1;
}

int showArray(lua_State* L)
{
    hvArray_tag const* const array = testHostArray(L, 1);
    pushText(L, array ? arrayText(L, *array) : "array given back");
    return 1;
}

} // namespace

void bindArrayAccess(lua_State* L)
{
    pushArrayMetatable(L);
    setField(L, "__index", guarded<readArray>);
    setField(L, "__newindex", guarded<writeArray>);
    setField(L, "__call", guarded<callArray>);
    setField(L, "__len", guarded<countElements>);
    setField(L, "__pairs", guarded<iterateArray>);
    setField(L, "__eq", guarded<compareArrays>);
    setField(L, "__tostring", guarded<showArray>);
    lua_pop(L, 1);
}

} // namespace velmara::console
