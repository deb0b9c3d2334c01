#include "arrays/ArrayConstruction.hpp"

#include "arrays/ArrayClass.hpp"
#include "arrays/ElementSource.hpp"
#include "arrays/NewArray.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/Sentinel.hpp"
#include "lua/ScriptError.hpp"
#include "values/ArrayElement.hpp"
#include "values/HostText.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"

#include <algorithm>
#include <cstring>

namespace velmara::console {

namespace {

std::size_t checkSize(lua_State* L, int index, char const* what)
{
    int isInteger = 0;
    lua_Integer const size = lua_tointegerx(L, index, &isInteger);
    if (lua_type(L, index) != LUA_TNUMBER || !isInteger || size < 0)
        fail("size", std::string("the number of ") + what + " is a whole number from 0 on");
    return static_cast<std::size_t>(size);
}

/// Arguments 3 and 4, or without them the shape of the values.
Shape checkShape(lua_State* L, ElementSource const& source)
{
    if (lua_isnone(L, 3))
        return source.shape();
    Shape const shape{checkSize(L, 3, "rows"), checkSize(L, 4, "columns")};
    bool const fits = shape.columns == 0
                          ? source.count() == 0
                          : source.count() % shape.columns == 0 && source.count() / shape.columns == shape.rows;
    if (!fits && !source.isSingle())
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
    for (std::size_t i = 0; i < source.count(); ++i) {
        source.push(i);
        storeElement(L, lua_gettop(L), array, i, conversion);
        lua_pop(L, 1);
    }
}

void copyCell(hvArray_tag const* source, hvArray_tag* target, std::size_t index)
{
    hvArray_tag const* const cell = orbis::host_extensions::getCell(source, index);
    ArrayPtr copy(cell ? hvCreateSharedDataCopy(cell) : nullptr);
    hvSetCell(target, index, copy.get());
    static_cast<void>(copy.release());
}

/// Copies all elements of an array, in column order, to a new one of the same class and number of elements; the shapes
/// may differ. Exact: keeps ill-formed text and the class of a cell's array.
void copyElements(hvArray_tag const* source, hvArray_tag* target)
{
    hvClassID const classID = source->_get_class_id_non_trivial();
    std::size_t const count = source->get_number_of_elements();
    if (void const* const data = orbis::host_extensions::getData(source)) {
        if (count != 0)
            std::memcpy(orbis::host_extensions::getWritableData(target), data, count * memoryOfElement(classID));
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (classID == hvCELL_CLASS)
            copyCell(source, target, i);
        else if (classID == hvSTRING_CLASS)
            storeString(target, i, stringAt(*source, i));
        else
            orbis::omSetArrayElement(target, i, orbis::omGetArrayElement(source, i));
    }
}

} // namespace

int createArray(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    lua_settop(L, std::min(lua_gettop(L), 4));
    ArrayClass const arrayClass = checkArrayClass(L, 1);
    Conversion conversion;
    // Pushing elements may run finalizers of the script, which may end the process.
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    ElementSource const source(L, 2, arrayClass.classID, frame);
    Shape const shape = checkShape(L, source);
    hvArray_tag* const array = frame.push(newArray(L, arrayClass, shape, conversion));
    if (source.array() && className(source.array()) == arrayClass.name) {
        Hvm::Scope const scope(HostContext::of(L).hvm());
        copyElements(source.array(), array);
    } else if (source.isSingle())
        fill(L, source, array, conversion);
    else
        storeEach(L, source, array, conversion);
    pushHostArray(L, *array);
    return 1;
}

} // namespace velmara::console
