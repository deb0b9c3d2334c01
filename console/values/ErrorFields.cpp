#include "values/ErrorFields.hpp"

#include "lua/ScriptError.hpp"
#include "values/ValueToLua.hpp"

namespace velmara::console {

namespace {

int pushField(lua_State* L)
{
    pushValue(L, static_cast<hvArray_tag const*>(lua_touserdata(L, 1)));
    return 1;
}

} // namespace

void bindErrorFields(lua_State* L)
{
    convertFieldsWith(L, guarded<pushField>);
}

} // namespace velmara::console
