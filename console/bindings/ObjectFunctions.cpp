#include "bindings/ObjectFunctions.hpp"

#include "bindings/ObjectListing.hpp"
#include "handles/ContainedObjects.hpp"
#include "handles/HostArray.hpp"
#include "handles/HostObject.hpp"
#include "handles/Proxy.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "values/HostCall.hpp"
#include "values/ValueToHost.hpp"

#include <string>
#include <unordered_set>

namespace velmara::console {

namespace {

std::string classOfName(HostContext& context, std::string const& name)
{
    switch (context.hvm().lookUp(name)) {
    case NameKind::Package:
        return "package";
    case NameKind::Class:
        return name;
    default:
        fail("unknownName", name + " is not published any more");
    }
}

std::string classOfValue(lua_State* L)
{
    try {
        return className(toHost(L, 1).get());
    } catch (Error const&) {
        return luaL_typename(L, 1);
    }
}

/// The host's class of a value; Lua's type for what cannot be passed to the host.
int classOf(lua_State* L)
{
    luaL_checkany(L, 1);
    if (isObject(L, 1))
        pushText(L, objectClass(L, 1));
    else if (auto const name = proxyName(L, 1); !name.empty())
        pushText(L, classOfName(HostContext::of(L), std::string(name)));
    else
        pushText(L, lua_isnil(L, 1) ? "nil" : classOfValue(L));
    return 1;
}

/// Throws for objects that native code, which waits for a function of the script, was called with or has passed on.
void requireUnused(HostContext const& host, hvArray_tag const* objects)
{
    if (!host.isInCallback())
        return;
    std::unordered_set<void const*> used;
    for (hvArray_tag const* const array : host.arraysInUse())
        visitObjects(array, [&](void const* object) { used.insert(object); });
    visitObjects(objects, [&](void const* object) {
        if (object && used.contains(object))
            fail("inUse",
                 "an object cannot be deleted while native code uses it and waits for a function of the script");
    });
}

/// Destroys an object, or the objects in a table or an array, now.
int deleteObjects(lua_State* L)
{
    if (!isObject(L, 1) && !isHostArray(L, 1) && (!lua_istable(L, 1) || !proxyName(L, 1).empty()))
        fail("noObject", "delete needs an object, not " + kindAt(L, 1));
    lua_settop(L, 1);
    HostCall call(L);
    hvArray_tag* objects = call.inputs(1).front();
    if (objects->_get_class_id_non_trivial() != hvOBJECT_CLASS && objects->get_number_of_elements() != 0)
        fail("noObject", "delete needs an object, or a table or an array of objects with a class in common");
    requireUnused(HostContext::of(L), objects);
    if (objects->get_number_of_elements() != 0)
        call.hvm().deleteObjects(objects);
    return 0;
}

/// A new object with the value of the given one.
int copyObject(lua_State* L)
{
    if (!isObject(L, 1))
        fail("noObject", "copy needs an object, not " + kindAt(L, 1));
    HostCall call(L);
    hvArray_tag* const object = call.share(checkObject(L, 1));
    return call.finish(call.hvm().copy(object));
}

int isValidValue(lua_State* L)
{
    luaL_checkany(L, 1);
    bool result = false;
    if (isObject(L, 1))
        result = isValidObject(L, 1);
    else if (isHostArray(L, 1))
        result = isValid(testHostArray(L, 1));
    else if (auto const name = proxyName(L, 1); !name.empty())
        result = HostContext::of(L).hvm().lookUp(name) != NameKind::None;
    lua_pushboolean(L, result);
    return 1;
}

} // namespace

void bindObjectFunctions(lua_State* L)
{
    lua_register(L, "class", guarded<classOf>);
    lua_register(L, "copy", guarded<copyObject>);
    lua_register(L, "delete", guarded<deleteObjects>);
    lua_register(L, "isvalid", guarded<isValidValue>);
    lua_register(L, "objects", guarded<listObjects>);
    lua_register(L, "references", guarded<listReferences>);
}

} // namespace velmara::console
