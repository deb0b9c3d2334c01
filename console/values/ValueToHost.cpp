#include "values/ValueToHost.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Sentinel.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/FunctionValue.hpp"
#include "values/ScalarValue.hpp"
#include "values/TableToHost.hpp"

#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"

namespace velmara::console {

namespace {

ArrayPtr emptyArray()
{
    return ArrayPtr(orbis::host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS));
}

ArrayPtr userdata(lua_State* L, int index)
{
    if (hvArray_tag* const object = testObject(L, index)) {
        object->add_reference();
        return ArrayPtr(object);
    }
    if (isNull(L, index))
        return emptyArray();
    if (isMissing(L, index))
        return ArrayPtr(orbis::host_extensions::createStringMatrix(1, 1));
    if (!isHostArray(L, index))
        fail("value", kindAt(L, index) + " cannot be passed to the host");
    // A copy, so that what the script writes to its array later does not show in this one.
    return ArrayPtr(hvCreateSharedDataCopy(checkHostArray(L, index)));
}

} // namespace

ArrayPtr toHost(lua_State* L, int index, int type, Conversion& conversion)
{
    if (orbis::COSValue scalar; readScalar(L, index, type, scalar))
        return toArray(scalar);
    switch (type) {
    case LUA_TNIL:
        return emptyArray();
    case LUA_TSTRING:
        return ArrayPtr(orbis::host_extensions::createText(stringValue(L, index)));
    case LUA_TTABLE:
        return tableToHost(L, lua_absindex(L, index), conversion);
    case LUA_TUSERDATA:
        return userdata(L, index);
    case LUA_TFUNCTION:
        return functionToHost(L, index);
    default:
        fail("value", kindAt(L, index) + " cannot be passed to the host");
    }
}

} // namespace velmara::console
