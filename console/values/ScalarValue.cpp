#include "values/ScalarValue.hpp"

#include "handles/HostArray.hpp"
#include "handles/HostContext.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <concepts>
#include <cstdint>
#include <utility>

namespace velmara::console {

namespace {

template <class T>
void pushNumber(lua_State* L, T number)
{
    if constexpr (std::same_as<T, bool>)
        lua_pushboolean(L, number);
    else if constexpr (std::floating_point<T>)
        lua_pushnumber(L, number);
    else if (std::in_range<lua_Integer>(number))
        lua_pushinteger(L, static_cast<lua_Integer>(number));
    else {
        ArrayStack::Frame frame(HostContext::of(L).arrays());
        hvArray_tag* const scalar =
            frame.push(ArrayPtr(orbis::host_extensions::createMatrix(1, 1, hvUINT64_CLASS, &number)));
        pushHostArray(L, *scalar);
    }
}

} // namespace

ArrayPtr toArray(orbis::COSValue const& scalar)
{
    auto const bytes = scalar.scalar<std::uint64_t>(); // the scalar is in the first of them
    return ArrayPtr(orbis::host_extensions::createMatrix(1, 1, scalar.scalarClass(), &bytes));
}

void pushScalar(lua_State* L, orbis::COSValue const& scalar)
{
    if (scalar.isScalarOf(hvDOUBLE_CLASS)) [[likely]]
        return lua_pushnumber(L, scalar.scalar<double>());
    orbis::host_extensions::visitNumericClass(scalar.scalarClass(),
                                              [&]<class T>(T) { pushNumber(L, scalar.scalar<T>()); });
}

void pushNumericElement(lua_State* L, hvClassID classID, void const* data, std::size_t index)
{
    orbis::host_extensions::visitNumericClass(classID,
                                              [&]<class T>(T) { pushNumber(L, static_cast<T const*>(data)[index]); });
}

} // namespace velmara::console
