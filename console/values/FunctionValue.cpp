#include "values/FunctionValue.hpp"

#include "handles/HostArray.hpp"
#include "lua/ScriptError.hpp"
#include "values/HostCall.hpp"
#include "values/LuaFunction.hpp"

#include "host_extensions/functionValues.hpp"

namespace velmara::console {

namespace {

/// Upvalue 1 is the function array.
int callHeldFunction(lua_State* L)
{
    HostCall call(L);
    hvArray_tag* const function = call.share(checkHostArray(L, lua_upvalueindex(1)));
    return call.finish(call.hvm().callFunction(function, call.inputs(1)));
}

} // namespace

ArrayPtr functionToHost(lua_State* L, int index)
{
    if (lua_tocfunction(L, index) == guarded<callHeldFunction>) {
        index = lua_absindex(L, index);
        lua_getupvalue(L, index, 1);
        ArrayPtr array(hvCreateSharedDataCopy(checkHostArray(L, -1)));
        lua_pop(L, 1);
        return array;
    }
    auto function = std::make_unique<LuaFunction>(L, index);
    Hvm::Scope const scope(HostContext::of(L).hvm());
    return ArrayPtr(orbis::host_extensions::createFunction(function.release()));
}

void pushFunction(lua_State* L, hvArray_tag const& array)
{
    auto const* const function = dynamic_cast<LuaFunction*>(orbis::host_extensions::getFunction(&array));
    if (function && function->push(L))
        return;
    pushHostArray(L, array);
    lua_pushcclosure(L, guarded<callHeldFunction>, 1);
}

} // namespace velmara::console
