#include "arrays/NewArray.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"

#include "host_extensions/functionValues.hpp"
#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"

namespace velmara::console {

namespace {

void countMemory(hvClassID classID, Shape shape, Conversion& conversion)
{
    if (shape.columns != 0 && shape.rows > Conversion::maxBytes / shape.columns)
        fail("memory", "a value of more than 1 GB cannot be made");
    conversion.add(shape.count(), memoryOfElement(classID));
}

} // namespace

std::size_t checkSize(lua_State* L, int index, char const* what)
{
    int isInteger = 0;
    lua_Integer const size = lua_tointegerx(L, index, &isInteger);
    if (lua_type(L, index) != LUA_TNUMBER || !isInteger || size < 0)
        fail("size", std::string("the number of ") + what + " is a whole number from 0 on");
    return static_cast<std::size_t>(size);
}

ArrayPtr newMatrix(hvClassID classID, Shape shape)
{
    Conversion conversion;
    countMemory(classID, shape, conversion);
    return ArrayPtr(orbis::host_extensions::createMatrix(shape.rows, shape.columns, classID));
}

ArrayPtr newArray(lua_State* L, ArrayClass const& arrayClass, Shape shape, Conversion& conversion)
{
    if (arrayClass.classID == orbis::host_extensions::functionClass)
        fail("arrayClass", "a function stays what it is: it has no parts and no other form");
    countMemory(arrayClass.classID, shape, conversion);
    Hvm::Scope const scope(HostContext::of(L).hvm());
    switch (arrayClass.classID) {
    case hvCELL_CLASS:
        return ArrayPtr(hvCreateCellMatrix(shape.rows, shape.columns));
    case hvSTRING_CLASS:
        return ArrayPtr(orbis::host_extensions::createStringMatrix(shape.rows, shape.columns));
    case hvOBJECT_CLASS:
        return ArrayPtr(orbis::omCreateORBISMatrix(shape.rows, shape.columns, arrayClass.name.c_str()));
    default:
        return ArrayPtr(orbis::host_extensions::createMatrix(shape.rows, shape.columns, arrayClass.classID));
    }
}

} // namespace velmara::console
