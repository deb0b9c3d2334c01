#include "arrays/ArrayReduction.hpp"

#include "arrays/ArrayOperands.hpp"
#include "arrays/Dimension.hpp"
#include "arrays/NewArray.hpp"
#include "arrays/NumberReduction.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"
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

/// Their elements.
template <class Reduction>
struct ReducedData {
    typename Reduction::Result* values;
    double* positions;

    /// Returns false when the result does not fit.
    bool store(Reduction const& reduction, std::size_t index) const
    {
        if constexpr (HasPosition<Reduction>)
            positions[index] = static_cast<double>(reduction.position() + 1);
        return reduction.store(values[index]);
    }
};

/// Reduces runs of `length` elements, one after the other, up to the first whose result does not fit. Returns how many.
template <class Reduction, class T>
std::size_t reduceRuns(T const* data, std::size_t count, std::size_t length, ReducedData<Reduction> results)
{
    for (std::size_t run = 0; run < count; ++run) {
        Reduction reduction;
        for (std::size_t i = 0; i < length; ++i)
            if (!reduction.add(data[run * length + i], i))
                break;
        if (!results.store(reduction, run))
            return run;
    }
    return count;
}

/// Likewise each row: column by column, in the order of the memory.
template <class Reduction, class T>
std::size_t reduceRows(T const* data, Shape shape, ReducedData<Reduction> results)
{
    std::vector<Reduction> reductions(shape.rows);
    for (std::size_t column = 0; column < shape.columns; ++column)
        for (std::size_t row = 0; row < shape.rows; ++row)
            reductions[row].add(data[column * shape.rows + row], column);
    for (std::size_t row = 0; row < shape.rows; ++row)
        if (!results.store(reductions[row], row))
            return row;
    return shape.rows;
}

/// Reduces the array. Returns how many results fit their class.
template <class Reduction, class T>
std::size_t reduceArray(hvArray_tag const& array, Dimension dimension, ReducedArrays const& arrays)
{
    using namespace orbis::host_extensions;
    auto const* const data = static_cast<T const*>(getData(&array));
    ReducedData<Reduction> const results{static_cast<typename Reduction::Result*>(getWritableData(arrays.values)),
                                         arrays.positions ? static_cast<double*>(getWritableData(arrays.positions))
                                                          : nullptr};
    std::size_t const count = arrays.values->get_number_of_elements();
    if (count == 0)
        return 0;
    if (dimension == Dimension::Rows)
        return reduceRows<Reduction>(data, shapeOf(array), results);
    return reduceRuns<Reduction>(data, count, array.get_number_of_elements() / count, results);
}

/// New arrays for the results of that class.
ReducedArrays createReduced(hvClassID classID, Shape shape, bool havePositions, ArrayStack::Frame& frame)
{
    ReducedArrays arrays;
    arrays.values = frame.push(newMatrix(classID, shape));
    if (havePositions)
        arrays.positions = frame.push(newMatrix(hvDOUBLE_CLASS, shape));
    return arrays;
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
    constexpr bool isExtreme = HasPosition<Reduction<double>>;
    if (isExtreme && dimension == Dimension::All && array->get_number_of_elements() == 0) {
        lua_pushnil(L);
        return 1;
    }
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    Shape const shape = reducedShape(shapeOf(*array), dimension, isExtreme);
    ReducedArrays arrays;
    std::size_t const reduced = visitNumericClass(array->_get_class_id_non_trivial(), [&]<class T>(T) {
        arrays = createReduced(numericClassOf<typename Reduction<T>::Result>.classID, shape, isExtreme, frame);
        return reduceArray<Reduction<T>, T>(*array, dimension, arrays);
    });
    if (reduced != shape.count())
        fail("element", "sum " + std::to_string(reduced + 1) + " does not fit " + className(arrays.values));
    return pushReduced(L, arrays, dimension);
}

} // namespace

int sumArray(lua_State* L)
{
    return reduce<Sum>(L);
}

int meanOfArray(lua_State* L)
{
    return reduce<Mean>(L);
}

int minOfArray(lua_State* L)
{
    return reduce<Least>(L);
}

int maxOfArray(lua_State* L)
{
    return reduce<Greatest>(L);
}

int isAnyNonzero(lua_State* L)
{
    return reduce<Any>(L);
}

int areAllNonzero(lua_State* L)
{
    return reduce<All>(L);
}

} // namespace velmara::console
