#include "arrays/ArrayReduction.hpp"

#include "arrays/ArrayMethods.hpp"
#include "arrays/ArrayOperands.hpp"
#include "arrays/Dimension.hpp"
#include "arrays/NewArray.hpp"
#include "arrays/NumberReduction.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "values/ArrayElement.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <vector>

namespace velmara::console {

namespace {

using orbis::host_extensions::numericClassOf;
using orbis::host_extensions::visitNumericClass;

template <class Reduction>
concept HasPosition = requires(Reduction const& reduction) { reduction.position(); };

/// The shape of the result; an extreme of nothing is nothing.
Shape reducedShape(Shape shape, Dimension dimension, bool isExtreme)
{
    if (dimension == Dimension::All)
        return {1, 1};
    std::size_t& reduced = dimension == Dimension::Columns ? shape.rows : shape.columns;
    if (reduced != 0 || !isExtreme)
        reduced = 1;
    return shape;
}

/// The results of one reduction, and the positions of extremes.
struct ReducedArrays {
    hvArray_tag* values = nullptr;
    hvArray_tag* positions = nullptr; ///< null when there are none
};

template <class Reduction>
void storeReduced(Reduction const& reduction, ReducedArrays const& results, std::size_t index)
{
    using Result = typename Reduction::Result;
    auto* const values = static_cast<Result*>(orbis::host_extensions::getWritableData(results.values));
    if (!reduction.store(values[index]))
        fail("element", "sum " + std::to_string(index + 1) + " does not fit " + numericClassOf<Result>.name);
    if constexpr (HasPosition<Reduction>)
        static_cast<double*>(orbis::host_extensions::getWritableData(results.positions))[index] =
            static_cast<double>(reduction.position() + 1);
}

/// Reduces runs of `length` elements, one after the other.
template <class Reduction, class T>
void reduceRuns(T const* data, std::size_t count, std::size_t length, ReducedArrays const& results)
{
    for (std::size_t run = 0; run < count; ++run) {
        Reduction reduction;
        for (std::size_t i = 0; i < length; ++i)
            if (!reduction.add(data[run * length + i], i))
                break;
        storeReduced(reduction, results, run);
    }
}

/// Reduces each row: column by column, in the order of the memory.
template <class Reduction, class T>
void reduceRows(T const* data, Shape shape, ReducedArrays const& results)
{
    std::vector<Reduction> reductions(shape.rows);
    for (std::size_t column = 0; column < shape.columns; ++column)
        for (std::size_t row = 0; row < shape.rows; ++row)
            reductions[row].add(data[column * shape.rows + row], column);
    for (std::size_t row = 0; row < shape.rows; ++row)
        storeReduced(reductions[row], results, row);
}

template <class Reduction, class T>
ReducedArrays reduceArray(hvArray_tag const& array, Dimension dimension, ArrayStack::Frame& frame)
{
    Shape const shape = shapeOf(array);
    Shape const reduced = reducedShape(shape, dimension, HasPosition<Reduction>);
    ReducedArrays results;
    results.values = frame.push(newMatrix(numericClassOf<typename Reduction::Result>.classID, reduced));
    if (HasPosition<Reduction>)
        results.positions = frame.push(newMatrix(hvDOUBLE_CLASS, reduced));
    auto const* const data = static_cast<T const*>(orbis::host_extensions::getData(&array));
    if (reduced.count() == 0)
        return results;
    if (dimension == Dimension::Rows)
        reduceRows<Reduction>(data, shape, results);
    else
        reduceRuns<Reduction>(data, reduced.columns, dimension == Dimension::All ? shape.count() : shape.rows, results);
    return results;
}

/// Pushes the results: values where all elements were reduced, else arrays.
int pushReduced(lua_State* L, ReducedArrays const& results, Dimension dimension)
{
    for (hvArray_tag const* array : {results.values, results.positions}) {
        if (array && dimension != Dimension::All)
            pushHostArray(L, *array);
        else if (array && array == results.positions)
            lua_pushinteger(
                L, static_cast<lua_Integer>(*static_cast<double const*>(orbis::host_extensions::getData(array))));
        else if (array)
            pushElement(L, array, 0);
    }
    return results.positions ? 2 : 1;
}

template <template <class> class Reduction>
int reduce(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    hvArray_tag const* const array = checkHostArray(L, 1);
    requireNumeric(*array);
    Dimension const dimension = checkDimension(L, 2);
    if (HasPosition<Reduction<double>> && dimension == Dimension::All && array->get_number_of_elements() == 0) {
        lua_pushnil(L);
        return 1;
    }
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    return visitNumericClass(array->_get_class_id_non_trivial(), [&]<class T>(T) {
        return pushReduced(L, reduceArray<Reduction<T>, T>(*array, dimension, frame), dimension);
    });
}

} // namespace

void bindArrayReduction(lua_State* L)
{
    pushArrayMethods(L);
    setField(L, "sum", guarded<reduce<Sum>>);
    setField(L, "mean", guarded<reduce<Mean>>);
    setField(L, "min", guarded<reduce<Least>>);
    setField(L, "max", guarded<reduce<Greatest>>);
    setField(L, "any", guarded<reduce<Any>>);
    setField(L, "all", guarded<reduce<All>>);
    lua_pop(L, 1);
}

} // namespace velmara::console
