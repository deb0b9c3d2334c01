#include "show/Summary.hpp"

#include "arrays/ArrayText.hpp"
#include "bindings/ClassMembers.hpp"
#include "bindings/ProxyBinding.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "text/CutText.hpp"
#include "values/ArrayElement.hpp"
#include "values/HostText.hpp"

#include "host_extensions/functionValues.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"
#include "orbis/objectArrays.hpp"

namespace velmara::console {

namespace {

constexpr std::size_t maxTextWidth = 24; ///< of a text

std::string numberSummary(lua_State* L, hvArray_tag const* array, std::size_t index)
{
    luaL_checkstack(L, 4, nullptr);
    pushElement(L, array, index);
    std::string text = lua_isboolean(L, -1)  ? (lua_toboolean(L, -1) ? "true" : "false")
                       : lua_isnumber(L, -1) ? valueText(L, -1)
                                             : arrayText(L, *testHostArray(L, -1)); // a great uint64
    lua_pop(L, 1);
    return text;
}

/// "{1.0, 2.0}", as a script has it; empty for an array that is long or no row.
std::string rowSummary(lua_State* L, hvArray_tag const* array)
{
    constexpr std::size_t maxElements = 8;
    std::size_t const count = array->get_number_of_elements();
    if (count > maxElements || (count > 0 && array->get_dimensions()[0] > 1))
        return {};
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += (i > 0 ? ", " : "{") + numberSummary(L, array, i);
    return text.size() > maxTextWidth ? std::string() : text.empty() ? "{}" : text + '}';
}

std::string stringSummary(hvArray_tag const* array)
{
    auto const text = stringAt(*array, 0);
    return text ? quoteText(*text, maxTextWidth) : "missing";
}

std::string objectSummary(lua_State* L, hvArray_tag* object)
{
    if (auto const* const enumerator = orbis::host_extensions::describeEnumerator(orbis::omGetArrayElement(object, 0)))
        return enumerator->name;
    std::string const name = unqualifiedName(className(object));
    if (!isValid(object))
        return "invalid " + name + " object";
    if (auto const cls = publishedClass(L, object))
        if (std::string const text = authorsText(L, object, *cls); !text.empty())
            return cutText(text, maxTextWidth);
    return name + " object";
}

std::string functionSummary(lua_State* L, int index)
{
    if (auto const name = calledName(L, index); !name.empty())
        return "function " + std::string(name);
    lua_Debug function;
    lua_pushvalue(L, index);
    lua_getinfo(L, ">S", &function);
    return function.linedefined > 0
               ? "function at " + std::string(function.short_src) + ':' + std::to_string(function.linedefined)
               : "function";
}

} // namespace

std::string authorsText(lua_State* L, hvArray_tag* object, ClassRecord const& cls)
{
    if (!hasText(cls))
        return {};
    NativeReading const reading = readText(L, object, cls);
    hvArray_tag const* const text = reading.value();
    bool const isText = text && text->_get_class_id_non_trivial() == hvCHAR_CLASS && text->get_dimensions()[0] == 1;
    return isText ? escapedText(toUtf8(rowOf(*text, 0))) : std::string();
}

hvArray_tag* objectAt(HostCall& call, hvArray_tag const* array, std::size_t index)
{
    orbis::COSInterfacePtr const object = orbis::omGetArrayElement(array, index);
    return object ? call.share(ArrayPtr(orbis::omCreateORBISScalar(object)).get()) : nullptr;
}

std::optional<ClassRecord> publishedClass(lua_State* L, hvArray_tag const* object)
{
    Hvm& hvm = HostContext::of(L).hvm();
    std::string const name = className(object);
    if (hvm.lookUp(name) != NameKind::Class)
        return std::nullopt;
    return hvm.describeClass(name);
}

std::string summary(lua_State* L, NativeReading const& reading)
{
    return reading.failure().empty() ? summary(L, reading.value(), reading.shape()) : "?";
}

std::string summary(lua_State* L, hvArray_tag* array, ValueShape shape)
{
    if (!array)
        return "nil";
    hvClassID const classID = array->_get_class_id_non_trivial();
    std::size_t const count = array->get_number_of_elements();
    if (count == 0 && (shape == ValueShape::Optional || (shape == ValueShape::Plain && classID == hvOBJECT_CLASS)))
        return "nil";
    if (classID == hvCHAR_CLASS && (array->get_dimensions()[0] == 1 || count == 0))
        return quoteText(count == 0 ? std::u16string_view() : rowOf(*array, 0), maxTextWidth);
    if (classID == orbis::host_extensions::functionClass)
        return "function";
    bool const areNumbers = orbis::host_extensions::findNumericClass(classID) != nullptr;
    if (areNumbers && count == 1 && shape != ValueShape::List)
        return numberSummary(L, array, 0);
    if (std::string row = areNumbers ? rowSummary(L, array) : ""; !row.empty())
        return row;
    if (count != 1 || shape == ValueShape::List || classID == hvCELL_CLASS)
        return classID == hvOBJECT_CLASS && count == 0 ? "none" : sizeAndClass(array);
    if (classID == hvSTRING_CLASS)
        return stringSummary(array);
    if (classID != hvOBJECT_CLASS)
        return sizeAndClass(array);
    HostCall call(L);
    hvArray_tag* const object = objectAt(call, array, 0);
    return object ? objectSummary(L, object) : "null";
}

std::string summary(lua_State* L, int index)
{
    switch (lua_type(L, index)) {
    case LUA_TSTRING:
        return quoteText(textAt(L, index), maxTextWidth);
    case LUA_TNUMBER:
        return valueText(L, index);
    case LUA_TBOOLEAN:
        return lua_toboolean(L, index) ? "true" : "false";
    case LUA_TFUNCTION:
        return functionSummary(L, index);
    case LUA_TTABLE:
        return proxyName(L, index).empty() ? "{...}" : std::string(proxyName(L, index));
    case LUA_TUSERDATA:
        if (isObject(L, index))
            return isValidObject(L, index) ? summary(L, checkObject(L, index))
                                           : "invalid " + std::string(objectClass(L, index)) + " object";
        if (hvArray_tag* const array = testHostArray(L, index))
            return summary(L, array);
        return kindAt(L, index);
    default:
        return luaL_typename(L, index);
    }
}

} // namespace velmara::console
