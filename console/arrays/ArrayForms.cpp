#include "arrays/ArrayForms.hpp"

#include "arrays/ElementCopy.hpp"
#include "arrays/NewArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"

#include "libhv/libhv.hpp"

namespace velmara::console {

namespace {

ArrayPtr newLike(lua_State* L, hvArray_tag const& array, Shape shape)
{
    Conversion conversion;
    return newArray(L, arrayClassOf(array), shape, conversion);
}

/// Arguments 2 and 3, of which one may be nil.
Shape checkForm(lua_State* L, std::size_t count)
{
    auto const missing = [&](std::size_t other) { return other == 0 ? 0 : count / other; };
    if (lua_isnoneornil(L, 2)) {
        std::size_t const columns = checkSize(L, 3, "columns");
        return {missing(columns), columns};
    }
    std::size_t const rows = checkSize(L, 2, "rows");
    return {rows, lua_isnoneornil(L, 3) ? missing(rows) : checkSize(L, 3, "columns")};
}

} // namespace

ArrayPtr transposed(lua_State* L, hvArray_tag const& array)
{
    Shape const shape = shapeOf(array);
    ArrayPtr result = newLike(L, array, {shape.columns, shape.rows});
    Hvm::Scope const scope(HostContext::of(L).hvm());
    if (shape.count() == 0) // there may be any number of empty rows
        return result;
    copyElements(&array, result.get(), [shape](auto const& copy) {
        for (std::size_t row = 0; row < shape.rows; ++row)
            for (std::size_t column = 0; column < shape.columns; ++column)
                copy(column * shape.rows + row, row * shape.columns + column);
    });
    return result;
}

int reshapeArray(lua_State* L)
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag const* const array = frame.push(ArrayPtr(hvCreateSharedDataCopy(checkHostArray(L, 1))));
    Shape const shape = checkForm(L, array->get_number_of_elements());
    if (!shape.holds(array->get_number_of_elements()))
        fail("size", "the elements of " + shapeText(*array) + " do not fill " + shapeText(shape));
    hvArray_tag* const result = frame.push(newLike(L, *array, shape));
    {
        Hvm::Scope const scope(HostContext::of(L).hvm());
        copyAllElements(array, result);
    }
    pushHostArray(L, *result);
    return 1;
}

int transposeArray(lua_State* L)
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag const* const array = frame.push(ArrayPtr(hvCreateSharedDataCopy(checkHostArray(L, 1))));
    pushHostArray(L, *frame.push(transposed(L, *array)));
    return 1;
}

} // namespace velmara::console
