#include "values/HostCall.hpp"

#include "handles/HostArray.hpp"
#include "lua/ScriptError.hpp"
#include "values/ValueToHost.hpp"
#include "values/ValueToLua.hpp"

namespace velmara::console {

namespace {

ArrayPtr input(lua_State* L, int index, int number)
{
    try {
        return toHost(L, index);
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
        frame_.push(input(L_, i, i - first + 1));
    return frame_.arrays().subspan(start);
}

int HostCall::finish(ArrayPtr result)
{
    if (failure_) [[unlikely]] {
        pushError(L_, *failure_);
        return raised;
    }
    if (!result)
        return 0;
    hvArray_tag const* const array = frame_.push(std::move(result));
    if (keepsArray_)
        pushHostArray(L_, *array);
    else
        pushValue(L_, array);
    return 1;
}

} // namespace velmara::console
