#include "values/HostCall.hpp"

#include "handles/HostArray.hpp"
#include "lua/ScriptError.hpp"
#include "values/ScalarValue.hpp"
#include "values/ValueToHost.hpp"
#include "values/ValueToLua.hpp"

#include <algorithm>

namespace velmara::console {

namespace {

ArrayPtr input(lua_State* L, int index, int type, int number)
{
    try {
        Conversion conversion;
        return toHost(L, index, type, conversion);
    } catch (Error const& error) {
        throw Error(error.identifier(), "input " + std::to_string(number) + ": " + error.text());
    }
}

} // namespace

hvArray_tag* HostCall::share(hvArray_tag* array)
{
    array->add_reference();
    return frame_.push(ArrayPtr(array));
}

Hvm::Inputs HostCall::inputs(int first)
{
    std::size_t const start = frame_.arrays().size();
    int const last = lua_gettop(L_);
    for (int i = first; i <= last; ++i)
        frame_.push(input(L_, i, lua_type(L_, i), i - first + 1));
    return frame_.arrays().subspan(start);
}

Hvm::Values HostCall::values(int first)
{
    int const count = std::max(lua_gettop(L_) - first + 1, 0);
    orbis::COSValue* values = inlineValues_;
    if (count > inlineCapacity) {
        moreValues_.resize(count);
        values = moreValues_.data();
    }
    for (int i = 0; i < count; ++i) {
        int const type = lua_type(L_, first + i);
        if (!readScalar(L_, first + i, type, values[i]))
            values[i] = orbis::COSValue(frame_.push(input(L_, first + i, type, i + 1)));
    }
    return {values, static_cast<std::size_t>(count)};
}

int HostCall::finishArray(ArrayPtr result, ValueShape shape)
{
    hvArray_tag const* const array = frame_.push(std::move(result));
    if (keepsArray_)
        pushHostArray(L_, *array);
    else
        pushValue(L_, array, shape);
    return 1;
}

int HostCall::finish(Value result)
{
    if (failure_) [[unlikely]] {
        pushError(L_, *failure_);
        return raised;
    }
    orbis::COSValue const& slot = result.slot();
    if (slot.isArray())
        return finishArray(result.releaseArray(), result.shape());
    if (slot.isEmpty())
        return 0;
    if (keepsArray_) [[unlikely]]
        return finishArray(toArray(slot), ValueShape::Plain);
    pushScalar(L_, slot);
    return 1;
}

} // namespace velmara::console
