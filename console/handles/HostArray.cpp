#include "handles/HostArray.hpp"

#include "handles/HostContext.hpp"
#include "handles/ValueText.hpp"
#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <limits>
#include <new>

namespace velmara::console {

namespace {

constexpr char const* arrayType = "velmara.array";

using Holder = HeldArrays::Holder;

int releaseArray(lua_State* L)
{
    auto& holder = *static_cast<Holder*>(luaL_checkudata(L, 1, arrayType));
    HostContext::of(L).heldArrays().release(holder).reset(); // last: destroying objects in it runs native code
    return 0;
}

} // namespace

void pushArrayMetatable(lua_State* L)
{
    pushNamedMetatable(L, arrayType, [L] {
        setField(L, "__gc", releaseArray);
        setField(L, "__close", releaseArray);
        setField(L, "__metatable", "array");
        setField(L, "__name", "host array"); // in Lua's own errors
    });
}

void stepCollector(lua_State* L, hvArray_tag const& array)
{
    std::size_t const bytes = array.get_number_of_elements() * memoryOfElement(array._get_class_id_non_trivial());
    constexpr std::size_t maxStep = std::numeric_limits<int>::max() / 1024;
    if (bytes >= 1024 && lua_gc(L, LUA_GCISRUNNING))
        lua_gc(L, LUA_GCSTEP, static_cast<int>(std::min(bytes / 1024, maxStep)));
}

void pushHostArray(lua_State* L, hvArray_tag const& array)
{
    HostContext::of(L).requireOpen();
    luaL_checkstack(L, 6, nullptr);
    auto* holder = new (lua_newuserdatauv(L, sizeof(Holder), 0)) Holder;
    pushArrayMetatable(L);
    lua_setmetatable(L, -2);
    HostContext::of(L).heldArrays().hold(*holder, ArrayPtr(hvCreateSharedDataCopy(&array)));
    stepCollector(L, array);
}

void replaceHostArray(lua_State* L, int index, ArrayPtr array) noexcept
{
    auto& holder = *static_cast<Holder*>(lua_touserdata(L, index));
    HeldArrays& held = HostContext::of(L).heldArrays();
    ArrayPtr const old = held.release(holder); // destroyed last: destroying objects in it runs native code
    held.hold(holder, std::move(array));       // takes the slot that is free now
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

std::size_t memoryOfElement(hvClassID classID)
{
    switch (classID) {
    case hvCHAR_CLASS:
        return sizeof(char16_t);
    case hvCELL_CLASS:
    case hvSTRING_CLASS:
        return 96;
    default:
        auto const* const numeric = orbis::host_extensions::findNumericClass(classID);
        return numeric ? numeric->size : sizeof(void*);
    }
}

} // namespace velmara::console
