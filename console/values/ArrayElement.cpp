#include "values/ArrayElement.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "handles/Sentinel.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/FunctionValue.hpp"
#include "values/HostText.hpp"
#include "values/ScalarValue.hpp"
#include "values/ValueToHost.hpp"
#include "values/ValueToLua.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/functionValues.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"
#include "libhv/libhv.hpp"
#include "orbis/objectArrays.hpp"
#include "string_matrix/string_matrix.hpp"

#include <charconv>
#include <cmath>
#include <string>

namespace velmara::console {

namespace {

using orbis::host_extensions::convertNumber;
using orbis::host_extensions::findNumericClass;
using orbis::host_extensions::functionClass;
using orbis::host_extensions::visitNumericClass;

void replaceNil(lua_State* L)
{
    if (!lua_isnil(L, -1))
        return;
    lua_pop(L, 1);
    pushNull(L);
}

[[noreturn]] void throwMismatch(lua_State* L, int value, hvArray_tag const& array, std::size_t index,
                                char const* reason)
{
    std::size_t const rows = array.get_dimensions()[0];
    std::size_t const columns = array.get_dimensions()[1];
    std::string position = std::to_string(index + 1);
    if (rows > 1 && columns > 1)
        position = '(' + std::to_string(index % rows + 1) + ", " + std::to_string(index / rows + 1) + ')';
    fail("element", "element " + position + " of an array of class " + className(&array) + ": " + valueText(L, value) +
                        ' ' + reason);
}

std::optional<std::uint64_t> readDigits(std::string_view text)
{
    std::uint64_t number = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// The number that a 1-by-1 numeric array holds.
template <class T>
std::optional<T> readScalar(hvArray_tag const& array)
{
    hvClassID const classID = array._get_class_id_non_trivial();
    if (!findNumericClass(classID) || array.get_number_of_elements() != 1)
        return std::nullopt;
    return visitNumericClass(classID, [&]<class Source>(Source) {
        Source const source = *static_cast<Source const*>(orbis::host_extensions::getData(&array));
        return convertNumber<T>(+source); // promotes a logical to 0 or 1
    });
}

template <class T>
std::optional<T> readNumber(lua_State* L, int value)
{
    if (lua_isinteger(L, value))
        return convertNumber<T>(lua_tointeger(L, value));
    switch (lua_type(L, value)) {
    case LUA_TNUMBER:
        return convertNumber<T>(lua_tonumber(L, value));
    case LUA_TBOOLEAN:
        return static_cast<T>(lua_toboolean(L, value));
    case LUA_TSTRING:
        if constexpr (std::same_as<T, std::uint64_t>)
            return readDigits(textAt(L, value));
        return std::nullopt;
    default:
        hvArray_tag const* const array = testHostArray(L, value);
        return array ? readScalar<T>(*array) : std::nullopt;
    }
}

template <class T>
void storeNumber(lua_State* L, int value, hvArray_tag* array, std::size_t index)
{
    std::optional<T> const number = readNumber<T>(L, value);
    if (!number)
        throwMismatch(L, value, *array, index, "does not fit its class");
    static_cast<T*>(orbis::host_extensions::getWritableData(array))[index] = *number;
}

void storeCharacter(lua_State* L, int value, hvArray_tag* array, std::size_t index)
{
    std::optional<std::uint16_t> unit;
    if (lua_type(L, value) != LUA_TSTRING)
        unit = readNumber<std::uint16_t>(L, value);
    else if (auto const text = hostTextAt(L, value); text.size() == 1)
        unit = text.front();
    if (!unit)
        throwMismatch(L, value, *array, index, "is not one UTF-16 unit: a text of one, or a number below 65536");
    static_cast<char16_t*>(orbis::host_extensions::getWritableData(array))[index] = *unit;
}

void storeText(lua_State* L, int value, hvArray_tag* array, std::size_t index)
{
    if (isMissing(L, value))
        return storeString(array, index, std::nullopt);
    if (lua_type(L, value) == LUA_TSTRING)
        return storeString(array, index, hostTextAt(L, value));
    hvArray_tag const* const held = testHostArray(L, value);
    if (Tarnwick::String::isString(held) && held->get_number_of_elements() == 1)
        return storeString(array, index, stringAt(*held, 0));
    if (!held || held->_get_class_id_non_trivial() != hvCHAR_CLASS || held->get_dimensions()[0] > 1)
        throwMismatch(L, value, *array, index, "is no text (write missing for none)");
    storeString(array, index, rowOf(*held, 0));
}

void storeCell(lua_State* L, int value, hvArray_tag* cells, std::size_t index, Conversion& conversion)
{
    int const type = lua_type(L, value);
    bool const isUserdata = type == LUA_TUSERDATA;
    ArrayPtr content = isUserdata && isNull(L, value) ? nullptr : toHost(L, value, type, conversion);
    // The array of an object stays the script's; the cell gets a copy.
    if (content && isUserdata && isObject(L, value))
        content.reset(hvCreateSharedDataCopy(content.get()));
    hvSetCell(cells, index, content.get());
    static_cast<void>(content.release());
}

void storeObject(lua_State* L, int value, hvArray_tag* array, std::size_t index)
{
    Hvm::Scope const scope(HostContext::of(L).hvm());
    if (isNull(L, value))
        return orbis::omSetArrayElement(array, index, nullptr);
    if (!isObject(L, value) || !hvIsA(checkObject(L, value), className(array).c_str()))
        throwMismatch(L, value, *array, index, "is no object of this class (write null for none)");
    orbis::omSetArrayElement(array, index, orbis::omGetArrayElement(checkObject(L, value), 0));
}

} // namespace

void pushElement(lua_State* L, hvArray_tag const* array, std::size_t index)
{
    hvClassID const classID = array->_get_class_id_non_trivial();
    if (!findNumericClass(classID))
        luaL_checkstack(L, 12, nullptr);
    if (classID == functionClass)
        return pushFunction(L, *array);
    void const* const data = orbis::host_extensions::getData(array);
    switch (classID) {
    case hvCHAR_CLASS:
        return pushHostText(L, {static_cast<char16_t const*>(data) + index, 1});
    case hvSTRING_CLASS:
        if (auto const text = stringAt(*array, index))
            return pushHostText(L, *text);
        return pushMissing(L);
    case hvCELL_CLASS:
        pushValue(L, orbis::host_extensions::getCell(array, index));
        return replaceNil(L);
    case hvOBJECT_CLASS:
        pushObject(L, array, index);
        return replaceNil(L);
    default:
        pushNumericElement(L, classID, data, index);
    }
}

void storeElement(lua_State* L, int value, hvArray_tag* array, std::size_t index, Conversion& conversion)
{
    hvClassID const classID = array->_get_class_id_non_trivial();
    if (classID == functionClass)
        throwMismatch(L, value, *array, index, "cannot be stored: a function stays what it is");
    switch (classID) {
    case hvCHAR_CLASS:
        return storeCharacter(L, value, array, index);
    case hvSTRING_CLASS:
        return storeText(L, value, array, index);
    case hvCELL_CLASS:
        return storeCell(L, value, array, index, conversion);
    case hvOBJECT_CLASS:
        return storeObject(L, value, array, index);
    default:
        visitNumericClass(classID, [&]<class T>(T) { storeNumber<T>(L, value, array, index); });
    }
}

} // namespace velmara::console
