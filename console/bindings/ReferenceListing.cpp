#include "bindings/ReferenceListing.hpp"

#include "handles/HostObject.hpp"
#include "values/HostCall.hpp"

#include <vector>

namespace velmara::console {

int listReferences(lua_State* L)
{
    luaL_checkstack(L, 6, nullptr);
    HostCall call(L);
    std::vector<Reference> const references = call.hvm().references(call.share(checkObject(L, 1)));
    lua_createtable(L, static_cast<int>(references.size()), 0);
    lua_Integer number = 0;
    for (Reference const& reference : references) {
        lua_createtable(L, 0, 2);
        pushText(L, reference.property);
        lua_setfield(L, -2, "property");
        pushObject(L, reference.object.get(), 0);
        lua_setfield(L, -2, "object");
        lua_rawseti(L, -2, ++number);
    }
    return 1;
}

} // namespace velmara::console
