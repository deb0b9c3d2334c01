#include "handles/ObjectValues.hpp"

#include "handles/HostContext.hpp"

namespace velmara::console {

namespace {

lua_Integer numberOf(orbis::COSInterface const* host)
{
    return embedderNumber(const_cast<orbis::COSInterface&>(*host));
}

} // namespace

void pushRecordedValue(lua_State* L, orbis::COSInterface const* host)
{
    lua_Integer const number = numberOf(host);
    if (number == 0)
        return lua_pushnil(L);
    HostContext::of(L).objectValues().push(L);
    lua_rawgeti(L, -1, number);
    lua_replace(L, -2);
}

void recordValue(lua_State* L, orbis::COSInterface* host, int index, std::size_t number)
{
    embedderNumber(*host) = static_cast<std::uint32_t>(number + 1); // 0 is that of objects without a value
    recordValue(L, host, index);
}

void recordValue(lua_State* L, orbis::COSInterface const* host, int index)
{
    index = lua_absindex(L, index);
    HostContext::of(L).objectValues().push(L);
    lua_pushvalue(L, index);
    lua_rawseti(L, -2, numberOf(host));
    lua_pop(L, 1);
}

} // namespace velmara::console
