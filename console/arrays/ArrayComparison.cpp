#include "arrays/ArrayComparison.hpp"

#include "arrays/ArrayOperands.hpp"
#include "arrays/ElementKernel.hpp"
#include "arrays/NewArray.hpp"
#include "arrays/NumberOrder.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

namespace velmara::console {

namespace {

using orbis::host_extensions::visitNumericClass;

struct Equal {
    static bool holds(auto a, auto b) { return isEqualTo(a, b); }
};

struct Different {
    static bool holds(auto a, auto b) { return !isEqualTo(a, b); }
};

struct Less {
    static bool holds(auto a, auto b) { return isLessThan(a, b); }
};

struct LessOrEqual {
    static bool holds(auto a, auto b) { return isLessThan(a, b) || isEqualTo(a, b); }
};

struct And {
    static bool holds(bool a, bool b) { return a && b; }
};

struct Or {
    static bool holds(bool a, bool b) { return a || b; }
};

template <class Predicate, class A, class B>
std::size_t compareBlock(A const* a, B const* b, bool* out, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = Predicate::holds(a[i], b[i]);
    return count;
}

template <class Predicate, class A, class B>
void compareElements(ArrayOperands const& operands, hvArray_tag* result)
{
    computeElements<A, B, bool>(operands, result, compareBlock<Predicate, A, B>);
}

template <class Predicate>
void compareEach(ArrayOperands const& operands, hvArray_tag* result)
{
    hvClassID const first = operands.first->_get_class_id_non_trivial();
    hvClassID const second = operands.second->_get_class_id_non_trivial();
    if (first == second)
        return visitNumericClass(first, [&]<class T>(T) { compareElements<Predicate, T, T>(operands, result); });
    visitComparedType(first, [&]<class A>(A) {
        visitComparedType(second, [&]<class B>(B) { compareElements<Predicate, A, B>(operands, result); });
    });
}

int pushLogicals(lua_State* L, ArrayOperands const& operands,
                 void (*store)(ArrayOperands const& operands, hvArray_tag* result))
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag* const result = frame.push(newMatrix(hvLOGICAL_CLASS, operands.shape));
    store(operands, result);
    pushHostArray(L, *result);
    return 1;
}

template <class Predicate, bool IsSwapped = false>
int compare(lua_State* L)
{
    checkHostArray(L, 1);
    lua_settop(L, 2);
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    ArrayOperands operands = checkOperands(L, frame);
    if (IsSwapped)
        std::swap(operands.first, operands.second);
    return pushLogicals(L, operands, compareEach<Predicate>);
}

template <class Predicate>
int combineLogicals(lua_State* L)
{
    lua_settop(L, 2);
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    ArrayOperands const operands = checkOperands(L, frame);
    for (hvArray_tag const* operand : {operands.first, operands.second})
        if (operand->_get_class_id_non_trivial() != hvLOGICAL_CLASS)
            fail("operand", "& | and ~ take logicals, not " + className(operand) + ": compare first, as in a:ne(0)");
    return pushLogicals(L, operands, compareElements<Predicate, bool, bool>);
}

/// Lua passes the operand twice.
int negateLogicals(lua_State* L)
{
    lua_settop(L, 1);
    lua_pushboolean(L, false);
    return combineLogicals<Equal>(L);
}

} // namespace

int compareEqual(lua_State* L)
{
    return compare<Equal>(L);
}

int compareDifferent(lua_State* L)
{
    return compare<Different>(L);
}

int compareLess(lua_State* L)
{
    return compare<Less>(L);
}

int compareLessOrEqual(lua_State* L)
{
    return compare<LessOrEqual>(L);
}

int compareGreater(lua_State* L)
{
    return compare<Less, true>(L);
}

int compareGreaterOrEqual(lua_State* L)
{
    return compare<LessOrEqual, true>(L);
}

void bindLogicalOperators(lua_State* L)
{
    pushArrayMetatable(L);
    setField(L, "__band", guarded<combineLogicals<And>>);
    setField(L, "__bor", guarded<combineLogicals<Or>>);
    setField(L, "__bxor", guarded<combineLogicals<Different>>);
    setField(L, "__bnot", guarded<negateLogicals>);
    lua_pop(L, 1);
}

} // namespace velmara::console
