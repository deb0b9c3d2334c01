#include "arrays/ArrayConstruction.hpp"

#include "arrays/ArrayClass.hpp"
#include "arrays/ElementConversion.hpp"
#include "arrays/ElementCopy.hpp"
#include "arrays/ElementSource.hpp"
#include "arrays/NewArray.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/Proxy.hpp"
#include "handles/Sentinel.hpp"
#include "lua/ScriptError.hpp"
#include "values/ArrayElement.hpp"
#include "values/ValueToHost.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

bool isNumericClass(hvArray_tag const* array)
{
    return orbis::host_extensions::findNumericClass(array->_get_class_id_non_trivial()) != nullptr;
}

/// Arguments 3 and 4, or without them the shape of the values.
Shape checkShape(lua_State* L, ElementSource const& source)
{
    if (lua_isnone(L, 3))
        return source.shape();
    Shape const shape{checkSize(L, 3, "rows"), checkSize(L, 4, "columns")};
    if (!shape.holds(source.count()) && !source.isSingle())
        fail("size", std::to_string(source.count()) + " values do not fill " + std::to_string(shape.rows) +
                         " rows of " + std::to_string(shape.columns));
    return shape;
}

/// Copies the bytes of the first element to all others.
void repeatFirst(hvArray_tag* array, std::size_t size)
{
    auto* const bytes = static_cast<char*>(orbis::host_extensions::getWritableData(array));
    // A new array is zero already; writing zeros to a large one would only make the system commit its memory.
    if (std::all_of(bytes, bytes + size, [](char byte) { return byte == 0; }))
        return;
    std::size_t const total = size * array->get_number_of_elements();
    for (std::size_t done = size; done < total; done *= 2)
        std::copy_n(bytes, std::min(done, total - done), bytes + done);
}

/// Stores one value in all elements. New arrays are `null` or `missing` already.
void fill(lua_State* L, ElementSource const& source, hvArray_tag* array, Conversion& conversion)
{
    std::size_t const count = array->get_number_of_elements();
    source.push(0);
    int const value = lua_gettop(L);
    if (count != 0)
        storeElement(L, value, array, 0, conversion);
    if (orbis::host_extensions::getData(array) && count != 0)
        repeatFirst(array, memoryOfElement(array->_get_class_id_non_trivial()));
    else if (!isNull(L, value) && !isMissing(L, value))
        for (std::size_t i = 1; i < count; ++i)
            storeElement(L, value, array, i, conversion);
    lua_pop(L, 1);
}

void storeEach(lua_State* L, ElementSource const& source, hvArray_tag* array, Conversion& conversion)
{
    bool const areNumbers = source.array() && isNumericClass(source.array()) && isNumericClass(array);
    for (std::size_t i = areNumbers ? convertElements(*source.array(), array) : 0; i < source.count(); ++i) {
        source.push(i);
        storeElement(L, lua_gettop(L), array, i, conversion);
        lua_pop(L, 1);
    }
}

} // namespace

hvArray_tag* createFrom(lua_State* L, ArrayClass const& arrayClass, ElementSource const& source, Shape shape,
                        ArrayStack::Frame& frame)
{
    Conversion conversion;
    hvArray_tag* const array = frame.push(newArray(L, arrayClass, shape, conversion));
    if (source.array() && className(source.array()) == arrayClass.name) {
        Hvm::Scope const scope(HostContext::of(L).hvm());
        copyAllElements(source.array(), array);
    } else if (source.isSingle())
        fill(L, source, array, conversion);
    else
        storeEach(L, source, array, conversion);
    return array;
}

int createArray(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    if (isHostArray(L, 1) || (lua_istable(L, 1) && proxyName(L, 1).empty())) {
        std::string const name = className(toHost(L, 1).get());
        pushText(L, name);
        lua_insert(L, 1);
    }
    lua_settop(L, std::min(lua_gettop(L), 4));
    ArrayClass const arrayClass = checkArrayClass(L, 1);
    // Pushing elements may run finalizers of the script, which may end the process.
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    ElementSource const source(L, 2, arrayClass.classID, frame);
    pushHostArray(L, *createFrom(L, arrayClass, source, checkShape(L, source), frame));
    return 1;
}

} // namespace velmara::console
