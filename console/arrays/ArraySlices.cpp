#include "arrays/ArraySlices.hpp"

#include "arrays/ArrayConstruction.hpp"
#include "arrays/ArrayIndex.hpp"
#include "arrays/ElementCopy.hpp"
#include "arrays/NewArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"
#include "values/ArrayElement.hpp"

#include "libhv/libhv.hpp"

#include <optional>

namespace velmara::console {

namespace {

/// The elements that the arguments from 2 on name: two indices for rows and columns, or one for all elements.
class Selection {
public:
    Selection(lua_State* L, hvArray_tag const& array, int indices, ArrayStack::Frame& frame)
        : rowStep_(shapeOf(array).rows),
          first_(L, 2, firstRange(shapeOf(array), indices), frame)
    {
        if (indices == 2)
            second_.emplace(L, 3, ArrayIndex::Range{"column", shapeOf(array).columns, shapeOf(array)}, frame);
        shape_ = second_ ? Shape{first_.count(), second_->count()} : linearShape(shapeOf(array), first_);
    }

    Shape shape() const { return shape_; }
    bool isElement() const { return first_.isNumber() && (!second_ || second_->isNumber()); }

    /// Calls `visit` with the linear index of each element, in the column order of the shape.
    template <class Visit>
    void visit(Visit const& visit) const
    {
        if (shape_.count() == 0)
            return; // there may be any number of empty columns
        std::size_t const columns = second_ ? second_->count() : 1;
        for (std::size_t column = 0; column < columns; ++column) {
            std::size_t const offset = second_ ? (*second_)[column] * rowStep_ : 0;
            for (std::size_t row = 0; row < first_.count(); ++row)
                visit(offset + first_[row]);
        }
    }

private:
    static ArrayIndex::Range firstRange(Shape array, int indices)
    {
        if (indices == 2)
            return {"row", array.rows, array};
        return {"element", array.count(), array};
    }

    static Shape linearShape(Shape array, ArrayIndex const& index)
    {
        if (array.count() == 1 || !array.isVector() || !index.shape().isVector())
            return index.shape();
        return array.rows == 1 ? Shape{1, index.count()} : Shape{index.count(), 1};
    }

    std::size_t rowStep_;
    ArrayIndex first_;
    std::optional<ArrayIndex> second_;
    Shape shape_;
};

/// How many of the `given` arguments after the array are indices, if there may be one or two.
int checkIndices(int given)
{
    if (given != 1 && given != 2)
        fail("index", "an array takes one index, or one for rows and one for columns, not " + std::to_string(given));
    return given;
}

int pushSlice(lua_State* L, int indices)
{
    luaL_checkstack(L, 8, nullptr);
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    // Held: allocation may run finalizers of the script, which may write to the array or release it.
    hvArray_tag const* const array = frame.push(ArrayPtr(hvCreateSharedDataCopy(checkHostArray(L, 1))));
    Selection const selection(L, *array, indices, frame);
    if (selection.isElement()) {
        selection.visit([&](std::size_t position) { pushElement(L, array, position); });
        return 1;
    }
    Conversion conversion;
    hvArray_tag* const result = frame.push(newArray(L, arrayClassOf(*array), selection.shape(), conversion));
    {
        Hvm::Scope const scope(HostContext::of(L).hvm());
        copyElements(array, result, [&](auto const& copy) {
            std::size_t to = 0;
            selection.visit([&](std::size_t from) { copy(from, to++); });
        });
    }
    pushHostArray(L, *result);
    return 1;
}

/// Whether values of that shape fill the selection, each in its place.
bool isFilledBy(Shape selection, Shape values)
{
    return values == selection || (values.isVector() && selection.isVector() && values.count() == selection.count());
}

/// Stores the value at an index in what the arguments from 2 on name.
void storeSlice(lua_State* L, int value, int indices)
{
    luaL_checkstack(L, 8, nullptr);
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag* const array = checkHostArray(L, 1);
    Selection const selection(L, *array, indices, frame);
    ArrayClass const arrayClass = arrayClassOf(*array);
    ElementSource const source(L, value, arrayClass.classID, frame);
    hvArray_tag const* const values = createFrom(L, arrayClass, source, source.shape(), frame);
    bool const isRepeated = shapeOf(*values) == Shape{1, 1};
    if (!isRepeated && !isFilledBy(selection.shape(), shapeOf(*values)))
        fail("size", "values of " + shapeText(*values) + " do not fill " + shapeText(selection.shape()));
    // Elements that allocate are stored in a copy, which takes the array's place: all of them, or none.
    hvArray_tag* target = checkHostArray(L, 1);
    bool const isCopied = !orbis::host_extensions::getData(target) && selection.shape().count() > 1;
    if (isCopied)
        target = frame.push(ArrayPtr(hvCreateSharedDataCopy(target)));
    Hvm::Scope const scope(HostContext::of(L).hvm());
    copyElements(values, target, [&](auto const& copy) {
        std::size_t from = 0;
        selection.visit([&](std::size_t to) { copy(isRepeated ? 0 : from++, to); });
    });
    if (isCopied)
        replaceHostArray(L, 1, ArrayPtr(hvCreateSharedDataCopy(target)));
}

} // namespace

int callArray(lua_State* L)
{
    return pushSlice(L, checkIndices(lua_gettop(L) - 1));
}

int setSlice(lua_State* L)
{
    int const indices = checkIndices(lua_gettop(L) - 2);
    storeSlice(L, lua_gettop(L), indices);
    return 0;
}

int readSlice(lua_State* L)
{
    return pushSlice(L, 1);
}

int writeSlice(lua_State* L)
{
    storeSlice(L, 3, 1);
    return 0;
}

} // namespace velmara::console
