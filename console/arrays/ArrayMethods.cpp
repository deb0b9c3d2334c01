#include "arrays/ArrayMethods.hpp"

#include "arrays/ArrayComparison.hpp"
#include "arrays/ArrayForms.hpp"
#include "arrays/ArrayOrder.hpp"
#include "arrays/ArrayReduction.hpp"
#include "arrays/ArraySlices.hpp"
#include "lua/CachedValue.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "text/CloseMatches.hpp"

namespace velmara::console {

namespace {

constexpr ArrayMethod methods[] = {
    {"all", "a:all(dimension)", "Whether all elements are true or not zero.", guarded<areAllNonzero>},
    {"any", "a:any(dimension)", "Whether any element is true or not zero.", guarded<isAnyNonzero>},
    {"eq", "a:eq(b)", "Where the elements are equal: a logical array.", guarded<compareEqual>},
    {"find", "a:find()", "The positions of the elements that are true or not zero.", guarded<findNonzero>},
    {"ge", "a:ge(b)", "Where the elements are greater or equal.", guarded<compareGreaterOrEqual>},
    {"gt", "a:gt(b)", "Where the elements are greater.", guarded<compareGreater>},
    {"le", "a:le(b)", "Where the elements are less or equal.", guarded<compareLessOrEqual>},
    {"lt", "a:lt(b)", "Where the elements are less.", guarded<compareLess>},
    {"max", "a:max(dimension)", "The greatest element, and its position.", guarded<maxOfArray>},
    {"mean", "a:mean(dimension)", "The mean of the elements.", guarded<meanOfArray>},
    {"min", "a:min(dimension)", "The least element, and its position.", guarded<minOfArray>},
    {"ne", "a:ne(b)", "Where the elements differ.", guarded<compareDifferent>},
    {"order", "a:order(dimension, \"descending\")", "The positions of the elements in their order.",
     guarded<orderArray>},
    {"reshape", "a:reshape(rows, columns)", "The same elements in another form.", guarded<reshapeArray>},
    {"set", "a:set(rows, columns, values)", "Stores one value, or as many, in those elements.", guarded<setSlice>},
    {"sort", "a:sort(dimension, \"descending\")", "The elements in order, NaN last.", guarded<sortArray>},
    {"sum", "a:sum(dimension)", "The sum of the elements.", guarded<sumArray>},
    {"transpose", "a:transpose()", "Rows as columns.", guarded<transposeArray>},
};

[[noreturn]] void failUnknownMethod(std::string const& name)
{
    std::vector<std::string> names;
    for (ArrayMethod const& method : methods)
        names.emplace_back(method.name);
    fail("index", "arrays have no method '" + name + '\'' + didYouMean(name, names));
}

/// Pushes the table of the methods by name.
void pushMethods(lua_State* L)
{
    pushCached(L, LUA_REGISTRYINDEX, "velmara.array.methods", [L] {
        lua_createtable(L, 0, static_cast<int>(std::size(methods)));
        for (ArrayMethod const& method : methods)
            setField(L, method.name, method.function);
    });
}

} // namespace

std::span<ArrayMethod const> arrayMethods()
{
    return methods;
}

void pushArrayMethod(lua_State* L)
{
    pushMethods(L);
    lua_pushvalue(L, -2);
    if (lua_rawget(L, -2) == LUA_TNIL)
        failUnknownMethod(std::string(textAt(L, -3)));
    lua_replace(L, -3);
    lua_pop(L, 1);
}

} // namespace velmara::console
