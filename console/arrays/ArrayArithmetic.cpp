#include "arrays/ArrayArithmetic.hpp"

#include "arrays/ArrayOperands.hpp"
#include "arrays/ElementKernel.hpp"
#include "arrays/NewArray.hpp"
#include "arrays/NumberArithmetic.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

#include "host_extensions/numberText.hpp"

namespace velmara::console {

namespace {

using orbis::COSValue;
using orbis::host_extensions::findNumericClass;
using orbis::host_extensions::isNumeric;
using orbis::host_extensions::visitNumericClass;

bool isIntegerClass(hvClassID classID)
{
    return isNumeric(classID) && classID != hvDOUBLE_CLASS && classID != hvSINGLE_CLASS;
}

hvClassID resultClass(hvClassID a, hvClassID b)
{
    if (isIntegerClass(a) && isIntegerClass(b) && a != b)
        fail("arrayClass", std::string("arrays of ") + findNumericClass(a)->name + " and " + findNumericClass(b)->name +
                               " have no class in common: convert one, as in array(\"double\", a)");
    if (isIntegerClass(a) || isIntegerClass(b))
        return isIntegerClass(a) ? a : b;
    return a == hvSINGLE_CLASS || b == hvSINGLE_CLASS ? hvSINGLE_CLASS : hvDOUBLE_CLASS;
}

/// Throws the error for the result at `index`, which does not fit. A unary operator has no second operand.
[[noreturn]] void failElement(ArrayOperands const& operands, hvArray_tag const& result, char const* symbol,
                              std::size_t index)
{
    auto const text = [&](hvArray_tag const* operand) {
        return orbis::host_extensions::numberText(operand->_get_class_id_non_trivial(),
                                                  orbis::host_extensions::getData(operand),
                                                  unexpandedIndex(shapeOf(*operand), operands.shape, index));
    };
    std::string const first = text(operands.first);
    std::string const term =
        operands.second ? first + ' ' + symbol + ' ' + text(operands.second) : std::string(symbol) + '(' + first + ')';
    fail("element", "element " + positionText(operands.shape, index) + ": " + term + " does not fit " +
                        findNumericClass(result._get_class_id_non_trivial())->name);
}

/// Computes elements up to the first that does not fit. Returns how many.
template <class Op, class A, class B, class R>
std::size_t computeBlock(A const* a, B const* b, R* out, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        if (!compute<Op>(a[i], b[i], out[i])) [[unlikely]]
            return i;
    return count;
}

template <class Op>
std::size_t computeArray(ArrayOperands const& operands, hvArray_tag* result)
{
    return visitNumericClass(result->_get_class_id_non_trivial(), [&]<class R>(R) -> std::size_t {
        if constexpr (std::floating_point<R>) {
            return computeElements<R, R, R>(operands, result, computeBlock<Op, R, R, R>);
        } else if constexpr (std::same_as<R, bool>) {
            return 0; // no result has this class
        } else {
            if (operands.first->_get_class_id_non_trivial() != COSValue::classOf<R>())
                return computeElements<double, R, R>(operands, result, computeBlock<Op, double, R, R>);
            if (operands.second->_get_class_id_non_trivial() != COSValue::classOf<R>())
                return computeElements<R, double, R>(operands, result, computeBlock<Op, R, double, R>);
            return computeElements<R, R, R>(operands, result, computeBlock<Op, R, R, R>);
        }
    });
}

template <class Op>
int operate(lua_State* L)
{
    lua_settop(L, 2);
    // Lua asks the first operand for its operator, but an array knows nothing of the classes of objects.
    if (isObject(L, 2) && luaL_getmetafield(L, 2, textAt(L, lua_upvalueindex(1)).data()) != LUA_TNIL) {
        lua_insert(L, 1);
        lua_call(L, 2, 1);
        return 1;
    }
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    ArrayOperands const operands = checkOperands(L, frame);
    hvClassID const classID =
        resultClass(operands.first->_get_class_id_non_trivial(), operands.second->_get_class_id_non_trivial());
    hvArray_tag* const result = frame.push(newMatrix(classID, operands.shape));
    if (std::size_t const computed = computeArray<Op>(operands, result); computed != operands.shape.count())
        failElement({operands.first, std::same_as<Op, Negated> ? nullptr : operands.second, operands.shape}, *result,
                    Op::symbol, computed);
    pushHostArray(L, *result);
    return 1;
}

template <class Op>
void bindOperator(lua_State* L, char const* metamethod)
{
    lua_pushstring(L, metamethod);
    lua_pushcclosure(L, guarded<operate<Op>>, 1);
    lua_setfield(L, -2, metamethod);
}

} // namespace

void bindArrayArithmetic(lua_State* L)
{
    pushArrayMetatable(L);
    bindOperator<Plus>(L, "__add");
    bindOperator<Minus>(L, "__sub");
    bindOperator<Times>(L, "__mul");
    bindOperator<Over>(L, "__div");
    bindOperator<FloorOver>(L, "__idiv");
    bindOperator<Modulo>(L, "__mod");
    bindOperator<Power>(L, "__pow");
    bindOperator<Negated>(L, "__unm");
    lua_pop(L, 1);
}

} // namespace velmara::console
