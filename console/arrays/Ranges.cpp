#include "arrays/Ranges.hpp"

#include "arrays/NewArray.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"
#include "lua/ScriptError.hpp"

#include "host_extensions/host_extensions.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmara::console {

namespace {

/// The number at `index`, which must be finite.
double checkFinite(lua_State* L, int index)
{
    double const number = luaL_checknumber(L, index);
    if (!std::isfinite(number))
        fail("range", "a range has finite numbers only");
    return number;
}

/// Pushes the row of `at(0)` to `at(count - 1)`.
template <class At>
int pushRow(lua_State* L, std::size_t count, At const& at)
{
    ArrayStack::Frame frame(HostContext::of(L).arrays());
    hvArray_tag* const row = frame.push(newMatrix(hvDOUBLE_CLASS, {1, count}));
    auto* const out = static_cast<double*>(orbis::host_extensions::getWritableData(row));
    for (std::size_t i = 0; i < count; ++i)
        out[i] = at(static_cast<double>(i));
    pushHostArray(L, *row);
    return 1;
}

int range(lua_State* L)
{
    double const first = checkFinite(L, 1);
    double const last = checkFinite(L, 2);
    double const step = lua_isnoneornil(L, 3) ? 1 : checkFinite(L, 3);
    if (step == 0)
        fail("range", "the step of a range is not 0");
    // Rounding errors of the three must not leave out the last one: 0.3 / 0.1 is less than 3.
    double const steps = std::floor((last - first) / step * (1 + 4 * std::numeric_limits<double>::epsilon()));
    if (!(steps >= 0)) // NOLINT(readability-simplify-boolean-expr): NaN
        return pushRow(L, 0, [](double) { return 0.0; });
    auto const count = static_cast<std::size_t>(std::min(steps, 0x1p60)) + 1;
    return pushRow(L, count, [&](double i) {
        double const number = first + i * step;
        return step > 0 ? std::min(number, last) : std::max(number, last);
    });
}

int linspace(lua_State* L)
{
    double const first = checkFinite(L, 1);
    double const last = checkFinite(L, 2);
    std::size_t const count = checkSize(L, 3, "points");
    double const steps = static_cast<double>(count) - 1;
    return pushRow(L, count, [&](double i) { return i == steps ? last : std::lerp(first, last, i / steps); });
}

} // namespace

void bindRanges(lua_State* L)
{
    lua_register(L, "range", guarded<range>);
    lua_register(L, "linspace", guarded<linspace>);
}

} // namespace velmara::console
