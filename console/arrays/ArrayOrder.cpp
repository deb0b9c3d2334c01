#include "arrays/ArrayOrder.hpp"

#include "arrays/ArrayForms.hpp"
#include "arrays/ArrayOperands.hpp"
#include "arrays/Dimension.hpp"
#include "arrays/ElementBlocks.hpp"
#include "arrays/NewArray.hpp"
#include "arrays/NumberOrder.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

namespace velmara::console {

namespace {

using orbis::host_extensions::visitNumericClass;

template <class T>
bool isNumber(T value)
{
    return value == value; // NOLINT(misc-redundant-expression): not NaN
}

/// Sorts one run of elements.
template <class T>
void sortRun(T* first, T* last, bool isDescending)
{
    T* const numbers = std::partition(first, last, isNumber<T>);
    std::sort(first, numbers);
    if (isDescending)
        std::reverse(first, numbers);
}

/// Stores the positions, from 1 on, of one run of elements in their order.
template <class T>
void orderRun(T const* elements, std::size_t count, double* positions, bool isDescending)
{
    std::iota(positions, positions + count, 1.0);
    auto const at = [elements](double position) { return elements[static_cast<std::size_t>(position) - 1]; };
    double* const numbers =
        std::stable_partition(positions, positions + count, [&](double position) { return isNumber(at(position)); });
    std::stable_sort(positions, numbers,
                     [&](double a, double b) { return isDescending ? at(b) < at(a) : at(a) < at(b); });
}

struct OrderRequest {
    Dimension dimension = Dimension::All;
    bool isDescending = false;

    std::size_t runLength(Shape shape) const { return dimension == Dimension::All ? shape.count() : shape.rows; }
};

/// Arguments 2 and 3.
OrderRequest checkOrder(lua_State* L)
{
    lua_settop(L, 3);
    int const direction = lua_type(L, 2) == LUA_TSTRING ? 2 : 3;
    OrderRequest const request{direction == 3 ? checkDimension(L, 2) : Dimension::All,
                               textAt(L, direction) == "descending"};
    if (!request.isDescending && !lua_isnil(L, direction) && textAt(L, direction) != "ascending")
        fail("order", "an order is \"ascending\" or \"descending\", not " + valueText(L, direction));
    return request;
}

/// A new array with the elements of each run of `array` in order.
ArrayPtr sorted(hvArray_tag const& array, OrderRequest const& request)
{
    Shape const shape = shapeOf(array);
    hvClassID const classID = array._get_class_id_non_trivial();
    ArrayPtr result(orbis::host_extensions::createMatrix(shape.rows, shape.columns, classID,
                                                         orbis::host_extensions::getData(&array)));
    std::size_t const length = request.runLength(shape);
    visitNumericClass(classID, [&]<class T>(T) {
        auto* const data = static_cast<T*>(orbis::host_extensions::getWritableData(result.get()));
        for (std::size_t start = 0; start < shape.count(); start += length)
            sortRun(data + start, data + start + length, request.isDescending);
    });
    return result;
}

/// A new array with the positions of the elements of each run of `array` in their order.
ArrayPtr ordered(hvArray_tag const& array, OrderRequest const& request)
{
    Shape const shape = shapeOf(array);
    ArrayPtr result = newMatrix(hvDOUBLE_CLASS, shape);
    auto* const positions = static_cast<double*>(orbis::host_extensions::getWritableData(result.get()));
    std::size_t const length = request.runLength(shape);
    visitComparedType(array._get_class_id_non_trivial(), [&]<class T>(T) {
        std::vector<T> numbers(shape.count());
        visitBlocks<T>(array, shape, [&](std::size_t start, std::size_t count, T const* block) {
            std::copy_n(block, count, numbers.data() + start);
        });
        for (std::size_t start = 0; start < shape.count(); start += length)
            orderRun(numbers.data() + start, length, positions + start, request.isDescending);
    });
    return result;
}

template <ArrayPtr (*Arrange)(hvArray_tag const& array, OrderRequest const& request)>
int arrange(lua_State* L)
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag const* const array = checkHostArray(L, 1);
    requireNumeric(*array);
    OrderRequest const request = checkOrder(L);
    if (request.dimension != Dimension::Rows)
        pushHostArray(L, *frame.push(Arrange(*array, request)));
    else
        pushHostArray(L, *frame.push(transposed(L, *Arrange(*transposed(L, *array), request))));
    return 1;
}

} // namespace

int sortArray(lua_State* L)
{
    return arrange<sorted>(L);
}

int orderArray(lua_State* L)
{
    return arrange<ordered>(L);
}

int findNonzero(lua_State* L)
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag const* const array = checkHostArray(L, 1);
    requireNumeric(*array);
    std::size_t const count = array->get_number_of_elements();
    hvArray_tag const* const positions =
        visitNumericClass(array->_get_class_id_non_trivial(), [&]<class T>(T zero) -> hvArray_tag* {
            auto const* const data = static_cast<T const*>(orbis::host_extensions::getData(array));
            std::size_t const found = count - static_cast<std::size_t>(std::count(data, data + count, zero));
            bool const isRow = shapeOf(*array).rows == 1;
            hvArray_tag* const result =
                frame.push(newMatrix(hvDOUBLE_CLASS, isRow ? Shape{1, found} : Shape{found, 1}));
            auto* next = static_cast<double*>(orbis::host_extensions::getWritableData(result));
            for (std::size_t i = 0; i < count; ++i)
                if (data[i] != zero)
                    *next++ = static_cast<double>(i + 1);
            return result;
        });
    pushHostArray(L, *positions);
    return 1;
}

} // namespace velmara::console
