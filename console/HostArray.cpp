#include "HostArray.hpp"

#include "NumericClass.hpp"
#include "ScriptError.hpp"

#include "velmara/Hvm.hpp"

#include "additions/additions.hpp"

#include <cstring>
#include <new>

namespace velmara::console {

namespace {

constexpr char const* arrayType = "velmara.array";
constexpr char const* nullType = "velmara.null";

struct Holder {
    ArrayPtr array;
};

int release(lua_State* L)
{
    static_cast<Holder*>(luaL_checkudata(L, 1, arrayType))->array.reset();
    return 0;
}

int length(lua_State* L)
{
    auto const* holder = static_cast<Holder*>(luaL_checkudata(L, 1, arrayType));
    lua_pushinteger(L, holder->array ? static_cast<lua_Integer>(holder->array->get_number_of_elements()) : 0);
    return 1;
}

std::string describe(hvArray_tag const& array)
{
    if (array._get_class_id_non_trivial() == hvUINT64_CLASS && array.get_number_of_elements() == 1)
        return std::to_string(*static_cast<std::uint64_t const*>(orbis::additions::getData(&array)));
    std::size_t const* sizes = array.get_dimensions();
    return std::to_string(sizes[0]) + "-by-" + std::to_string(sizes[1]) + ' ' + className(&array) + " array";
}

int toText(lua_State* L)
{
    auto const* holder = static_cast<Holder*>(luaL_checkudata(L, 1, arrayType));
    pushText(L, holder->array ? describe(*holder->array) : "array given back");
    return 1;
}

/// Equal are arrays of one class, size and content; of other than numeric classes only an array and itself.
bool areEqual(hvArray_tag const& a, hvArray_tag const& b)
{
    if (&a == &b)
        return true;
    hvClassID const classID = a._get_class_id_non_trivial();
    std::size_t const* sizesA = a.get_dimensions();
    std::size_t const* sizesB = b.get_dimensions();
    if (classID != b._get_class_id_non_trivial() || sizesA[0] != sizesB[0] || sizesA[1] != sizesB[1])
        return false;
    void const* dataA = orbis::additions::getData(&a);
    void const* dataB = orbis::additions::getData(&b);
    std::size_t const size = elementSize(classID) * a.get_number_of_elements();
    return dataA && dataB && std::memcmp(dataA, dataB, size) == 0;
}

int compare(lua_State* L)
{
    hvArray_tag const* a = testHostArray(L, 1);
    hvArray_tag const* b = testHostArray(L, 2);
    lua_pushboolean(L, a && b && areEqual(*a, *b));
    return 1;
}

void pushArrayMetatable(lua_State* L)
{
    if (!luaL_newmetatable(L, arrayType))
        return;
    luaL_Reg const functions[] = {{"__gc", release},
                                  {"__close", release},
                                  {"__len", guarded<length>},
                                  {"__eq", guarded<compare>},
                                  {"__tostring", guarded<toText>},
                                  {nullptr, nullptr}};
    luaL_setfuncs(L, functions, 0);
    lua_pushliteral(L, "array");
    lua_setfield(L, -2, "__metatable");
}

int nullToText(lua_State* L)
{
    lua_pushliteral(L, "null");
    return 1;
}

} // namespace

void pushHostArray(lua_State* L, ArrayPtr array)
{
    luaL_checkstack(L, 4, nullptr);
    auto* holder = new (lua_newuserdatauv(L, sizeof(Holder), 0)) Holder;
    pushArrayMetatable(L);
    lua_setmetatable(L, -2);
    holder->array = std::move(array);
}

hvArray_tag* testHostArray(lua_State* L, int index)
{
    auto const* holder = static_cast<Holder*>(luaL_testudata(L, index, arrayType));
    return holder ? holder->array.get() : nullptr;
}

void pushNull(lua_State* L)
{
    if (lua_getfield(L, LUA_REGISTRYINDEX, "velmara.null.value") == LUA_TUSERDATA)
        return;
    lua_pop(L, 1);
    lua_newuserdatauv(L, 0, 0);
    luaL_newmetatable(L, nullType);
    lua_pushcfunction(L, nullToText);
    lua_setfield(L, -2, "__tostring");
    lua_pushliteral(L, "null");
    lua_setfield(L, -2, "__metatable");
    lua_setmetatable(L, -2);
    lua_pushvalue(L, -1);
    lua_setfield(L, LUA_REGISTRYINDEX, "velmara.null.value");
}

bool isNull(lua_State* L, int index)
{
    return luaL_testudata(L, index, nullType) != nullptr;
}

} // namespace velmara::console
