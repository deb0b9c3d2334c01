#include "handles/HostArray.hpp"

#include "Session.hpp"
#include "arrays/ArrayAccess.hpp"
#include "arrays/ArrayText.hpp"
#include "handles/NumericClass.hpp"
#include "lua/NamedMetatable.hpp"
#include "lua/ScriptError.hpp"
#include "values/ValueToHost.hpp"

#include <algorithm>
#include <limits>
#include <new>

namespace velmara::console {

namespace {

constexpr char const* arrayType = "velmara.array";

using Holder = GivenArrays::Holder;

int release(lua_State* L)
{
    auto& holder = *static_cast<Holder*>(luaL_checkudata(L, 1, arrayType));
    Session::of(L).given().takeBack(holder).reset(); // last, as objects in it that end run native code
    return 0;
}

int toText(lua_State* L)
{
    hvArray_tag const* const array = testHostArray(L, 1);
    pushText(L, array ? arrayText(L, *array) : "array given back");
    return 1;
}

void fillArrayMetatable(lua_State* L)
{
    luaL_Reg const functions[] = {{"__gc", release},
                                  {"__close", release},
                                  {"__index", guarded<readArray>},
                                  {"__newindex", guarded<writeArray>},
                                  {"__len", guarded<countElements>},
                                  {"__pairs", guarded<iterateArray>},
                                  {"__eq", guarded<compareArrays>},
                                  {"__tostring", guarded<toText>},
                                  {nullptr, nullptr}};
    luaL_setfuncs(L, functions, 0);
    lua_pushliteral(L, "array");
    lua_setfield(L, -2, "__metatable");
    lua_pushliteral(L, "host array"); // in Lua's own errors
    lua_setfield(L, -2, "__name");
}

/// Lua sees a few bytes of an array, and would collect those out of use far too late.
void tellCollector(lua_State* L, hvArray_tag const& array)
{
    std::size_t const bytes = array.get_number_of_elements() * memoryOfElement(array._get_class_id_non_trivial());
    constexpr std::size_t most = std::numeric_limits<int>::max() / 1024;
    if (bytes >= 1024 && lua_gc(L, LUA_GCISRUNNING))
        lua_gc(L, LUA_GCSTEP, static_cast<int>(std::min(bytes / 1024, most)));
}

} // namespace

void pushHostArray(lua_State* L, hvArray_tag const& array)
{
    Session::of(L).requireRunning();
    luaL_checkstack(L, 6, nullptr);
    auto* holder = new (lua_newuserdatauv(L, sizeof(Holder), 0)) Holder;
    pushNamedMetatable(L, arrayType, [L] { fillArrayMetatable(L); });
    lua_setmetatable(L, -2);
    Session::of(L).given().give(*holder, ArrayPtr(hvCreateSharedDataCopy(&array)));
    tellCollector(L, array);
}

bool isHostArray(lua_State* L, int index)
{
    return luaL_testudata(L, index, arrayType) != nullptr;
}

hvArray_tag* testHostArray(lua_State* L, int index)
{
    auto const* holder = static_cast<Holder*>(luaL_testudata(L, index, arrayType));
    return holder ? holder->array : nullptr;
}

hvArray_tag* checkHostArray(lua_State* L, int index)
{
    if (!isHostArray(L, index))
        fail("noArray", kindAt(L, index) + " is no array of the host");
    if (hvArray_tag* const array = testHostArray(L, index))
        return array;
    fail("closed", "this array was given back");
}

} // namespace velmara::console
