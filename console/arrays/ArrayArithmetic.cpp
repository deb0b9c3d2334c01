#include "arrays/ArrayArithmetic.hpp"

#include "arrays/ArrayOperands.hpp"
#include "arrays/ElementBlocks.hpp"
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

template <class Op, class A, class B>
[[noreturn]] void failElement(std::string const& position, A a, B b, char const* className)
{
    using orbis::host_extensions::numberText;
    std::string const first = numberText(COSValue::classOf<A>(), &a, 0);
    std::string const second = numberText(COSValue::classOf<B>(), &b, 0);
    std::string const term = std::same_as<Op, Negated> ? "-(" + first + ')' : first + ' ' + Op::symbol + ' ' + second;
    fail("element", "element " + position + ": " + term + " does not fit " + className);
}

/// Computes all elements of the result, of class `R`, with the operands as `A` and `B`.
template <class Op, class A, class B, class R>
void computeElements(ArrayOperands const& operands, hvArray_tag* result)
{
    auto* const out = static_cast<R*>(orbis::host_extensions::getWritableData(result));
    visitBlocks<A, B>(*operands.first, *operands.second, operands.shape,
                      [&](std::size_t start, std::size_t count, A const* a, B const* b) {
                          for (std::size_t i = 0; i < count; ++i)
                              if (!compute<Op>(a[i], b[i], out[start + i])) [[unlikely]]
                                  failElement<Op>(positionText(operands.shape, start + i), a[i], b[i],
                                                  orbis::host_extensions::numericClassOf<R>.name);
                      });
}

template <class Op>
void computeArray(ArrayOperands const& operands, hvArray_tag* result)
{
    visitNumericClass(result->_get_class_id_non_trivial(), [&]<class R>(R) {
        if constexpr (std::floating_point<R>) {
            computeElements<Op, R, R, R>(operands, result);
        } else if constexpr (!std::same_as<R, bool>) {
            bool const isFirst = operands.first->_get_class_id_non_trivial() == COSValue::classOf<R>();
            bool const isSecond = operands.second->_get_class_id_non_trivial() == COSValue::classOf<R>();
            if (isFirst && isSecond)
                computeElements<Op, R, R, R>(operands, result);
            else if (isFirst)
                computeElements<Op, R, double, R>(operands, result);
            else
                computeElements<Op, double, R, R>(operands, result);
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
    computeArray<Op>(operands, result);
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
