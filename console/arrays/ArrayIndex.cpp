#include "arrays/ArrayIndex.hpp"

#include "arrays/ElementBlocks.hpp"
#include "handles/HostArray.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/ValueToHost.hpp"

#include "velmara/Hvm.hpp"

#include "host_extensions/numberText.hpp"

#include <algorithm>
#include <cmath>

namespace velmara::console {

namespace {

[[noreturn]] void failIndex(std::string const& given)
{
    fail("index", "an index is a whole number, a list of them, a list of true and false, or nil for all, not " + given);
}

[[noreturn]] void failPosition(double number, ArrayIndex::Range const& range)
{
    std::string const text = orbis::host_extensions::numberText(hvDOUBLE_CLASS, &number, 0);
    if (std::isnan(number) || std::trunc(number) != number)
        failIndex(text);
    fail("index", std::string(range.what) + ' ' + text + " lies outside the array, which is " + shapeText(range.array));
}

} // namespace

ArrayIndex::ArrayIndex(lua_State* L, int index, Range const& range, ArrayStack::Frame& frame)
{
    hvArray_tag const* given = nullptr;
    switch (lua_type(L, index)) {
    case LUA_TNIL:
        isAll_ = true;
        shape_ = {range.size, 1};
        return;
    case LUA_TNUMBER:
        isNumber_ = true;
        break;
    case LUA_TTABLE:
        break;
    default:
        if (!isHostArray(L, index))
            failIndex(kindAt(L, index));
        given = checkHostArray(L, index);
    }
    if (!given)
        given = frame.push(toHost(L, index));
    if (!orbis::host_extensions::findNumericClass(given->_get_class_id_non_trivial()))
        failIndex("a list of class " + className(given));
    if (given->_get_class_id_non_trivial() == hvLOGICAL_CLASS)
        readMask(*given, range);
    else
        readNumbers(*given, range);
}

void ArrayIndex::readNumbers(hvArray_tag const& numbers, Range const& range)
{
    shape_ = shapeOf(numbers);
    positions_ = std::make_unique_for_overwrite<std::size_t[]>(count());
    auto const size = static_cast<double>(range.size);
    visitBlocks<double>(numbers, shape_, [&](std::size_t start, std::size_t blockSize, double const* block) {
        for (std::size_t i = 0; i < blockSize; ++i) {
            // One that is in the range converts without loss; a NaN compares false.
            auto const position = block[i] >= 1 && block[i] <= size ? static_cast<std::size_t>(block[i]) : 0;
            if (position == 0 || static_cast<double>(position) != block[i])
                failPosition(block[i], range);
            positions_[start + i] = position - 1;
        }
    });
}

void ArrayIndex::readMask(hvArray_tag const& mask, Range const& range)
{
    Shape const shape = shapeOf(mask);
    bool const isOfElements = range.size == range.array.count();
    if (shape.count() != range.size || (!shape.isVector() && !(isOfElements && shape == range.array)))
        fail("size", "true and false of " + shapeText(shape) + " do not fit " + std::to_string(range.size) + ' ' +
                         range.what + "s of an array of " + shapeText(range.array));
    auto const* const data = static_cast<bool const*>(orbis::host_extensions::getData(&mask));
    auto const found = static_cast<std::size_t>(std::count(data, data + range.size, true));
    shape_ = shape.rows == 1 ? Shape{1, found} : Shape{found, 1};
    positions_ = std::make_unique_for_overwrite<std::size_t[]>(found);
    for (std::size_t i = 0, next = 0; i < range.size; ++i)
        if (data[i])
            positions_[next++] = i;
}

} // namespace velmara::console
