#include "arrays/ArrayFunctions.hpp"

#include "arrays/ArrayAccess.hpp"
#include "arrays/ArrayArithmetic.hpp"
#include "arrays/ArrayComparison.hpp"
#include "arrays/ArrayConstruction.hpp"
#include "arrays/Ranges.hpp"
#include "bindings/ClassMembers.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "handles/Sentinel.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/ValueToHost.hpp"
#include "values/ValueToLua.hpp"

#include "libhv/libhv.hpp"

#include <string>

namespace velmara::console {

namespace {

/// `tolua(array)`: an array of the host as tables, strings and numbers throughout; any other value as it is.
int toLua(lua_State* L)
{
    luaL_checkany(L, 1);
    lua_settop(L, 1);
    if (!isHostArray(L, 1))
        return 1;
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    Conversion conversion;
    pushContent(L, *frame.push(ArrayPtr(hvCreateSharedDataCopy(checkHostArray(L, 1)))), conversion);
    return 1;
}

/// `size(value)`: rows and columns, as the host sees the value.
int sizeOf(lua_State* L)
{
    luaL_checkany(L, 1);
    ArrayPtr const array = toHost(L, 1);
    lua_pushinteger(L, static_cast<lua_Integer>(array->get_dimensions()[0]));
    lua_pushinteger(L, static_cast<lua_Integer>(array->get_dimensions()[1]));
    return 2;
}

/// Has the next call to the host keep its result an array. The collector is stopped, so that the next call is none of a
/// finalizer.
class KeptResult {
public:
    explicit KeptResult(lua_State* L) : L_(L), isCollecting_(lua_gc(L, LUA_GCISRUNNING) != 0)
    {
        lua_gc(L, LUA_GCSTOP);
        HostContext::of(L).keepsNextArray() = true;
    }
    KeptResult(KeptResult const&) = delete;
    KeptResult& operator=(KeptResult const&) = delete;
    ~KeptResult()
    {
        HostContext::of(L_).keepsNextArray() = false;
        if (isCollecting_)
            lua_gc(L_, LUA_GCRESTART);
    }

private:
    lua_State* L_;
    bool isCollecting_;
};

/// `asarray(function, ...)` calls a function of the host, `asarray(object, name)` reads a property: what comes back
/// stays an array of the host.
int asArray(lua_State* L)
{
    bool const isRead = lua_gettop(L) == 2 && isObject(L, 1);
    if (!isRead && calledName(L, 1).empty())
        fail("asarray", "asarray takes a method or function of the host and its inputs, or an object and the name of "
                        "a property, not " +
                            kindAt(L, 1));
    {
        KeptResult const kept(L);
        if (isRead)
            lua_gettable(L, 1);
        else
            lua_call(L, lua_gettop(L) - 1, 1);
    }
    if (hvArray_tag const* const array = testHostArray(L, -1))
        stepCollector(L, *array); // which has stood still
    return 1;
}

} // namespace

void bindArrayFunctions(lua_State* L)
{
    bindArrayAccess(L);
    bindArrayArithmetic(L);
    bindLogicalOperators(L);
    bindRanges(L);
    lua_register(L, "array", guarded<createArray>);
    lua_register(L, "asarray", guarded<asArray>);
    lua_register(L, "tolua", guarded<toLua>);
    lua_register(L, "size", guarded<sizeOf>);
    pushNull(L);
    lua_setglobal(L, "null");
    pushMissing(L);
    lua_setglobal(L, "missing");
}

} // namespace velmara::console
