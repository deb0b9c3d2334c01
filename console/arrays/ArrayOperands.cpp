#include "arrays/ArrayOperands.hpp"

#include "handles/HostArray.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/ValueToHost.hpp"

#include "velmara/ArrayPtr.hpp"
#include "velmara/Hvm.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

namespace velmara::console {

namespace {

using orbis::host_extensions::convertNumber;
using orbis::host_extensions::findNumericClass;
using orbis::host_extensions::visitNumericClass;

template <class T>
ArrayPtr scalarOf(T value)
{
    return ArrayPtr(orbis::host_extensions::createMatrix(1, 1, orbis::COSValue::classOf<T>(), &value));
}

/// The operand at `index`; null for a number, which has no class of its own.
hvArray_tag const* readOperand(lua_State* L, int index, ArrayStack::Frame& frame)
{
    switch (lua_type(L, index)) {
    case LUA_TNUMBER:
        return nullptr;
    case LUA_TTABLE:
    case LUA_TBOOLEAN:
        return frame.push(toHost(L, index));
    default:
        if (!isHostArray(L, index))
            fail("operand", "an operand is a number, a logical, or an array or table of them, not " + kindAt(L, index));
        return checkHostArray(L, index);
    }
}

template <class Number>
ArrayPtr scalarBeside(hvClassID classID, Number number)
{
    return visitNumericClass(classID, [&]<class T>(T) -> ArrayPtr {
        if constexpr (!std::same_as<T, bool>)
            if (auto const converted = convertNumber<T>(number))
                return scalarOf(*converted);
        if (auto const converted = convertNumber<double>(number))
            return scalarOf(*converted);
        fail("operand", std::to_string(number) + " does not fit double");
    });
}

hvArray_tag const* readNumber(lua_State* L, int index, hvArray_tag const& other, ArrayStack::Frame& frame)
{
    hvClassID const classID = other._get_class_id_non_trivial();
    return frame.push(lua_isinteger(L, index) ? scalarBeside(classID, lua_tointeger(L, index))
                                              : scalarBeside(classID, lua_tonumber(L, index)));
}

bool isFitting(std::size_t a, std::size_t b)
{
    return a == b || a == 1 || b == 1;
}

} // namespace

void requireNumeric(hvArray_tag const& array)
{
    if (!findNumericClass(array._get_class_id_non_trivial()))
        fail("operand", "this takes arrays of numbers or logicals, not of class " + className(&array));
}

ArrayOperands checkOperands(lua_State* L, ArrayStack::Frame& frame)
{
    ArrayOperands operands{readOperand(L, 1, frame), readOperand(L, 2, frame), {}};
    if (!operands.first && !operands.second)
        fail("noArray", "neither operand is an array of the host");
    if (operands.first)
        requireNumeric(*operands.first);
    if (operands.second)
        requireNumeric(*operands.second);
    if (!operands.first)
        operands.first = readNumber(L, 1, *operands.second, frame);
    if (!operands.second)
        operands.second = readNumber(L, 2, *operands.first, frame);
    Shape const a = shapeOf(*operands.first);
    Shape const b = shapeOf(*operands.second);
    if (!isFitting(a.rows, b.rows) || !isFitting(a.columns, b.columns))
        fail("size", "arrays of " + shapeText(a) + " and " + shapeText(b) + " do not fit each other");
    operands.shape = {a.rows == 1 ? b.rows : a.rows, a.columns == 1 ? b.columns : a.columns};
    return operands;
}

} // namespace velmara::console
