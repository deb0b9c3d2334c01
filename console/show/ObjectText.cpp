#include "show/ObjectText.hpp"

#include "bindings/MemberRecords.hpp"
#include "handles/HostContext.hpp"
#include "handles/HostObject.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"
#include "show/NativeReading.hpp"
#include "show/Summary.hpp"
#include "text/DisplayWidth.hpp"

#include <string>
#include <vector>

namespace velmara::console {

namespace {

constexpr std::size_t maxObjectText = 80;

char const namesKey = 0; // its address is the key of the properties' names in the metatables of objects

/// Pushes the names of the properties of the object at 1 that are shown; kept with its metatable.
void pushShownNames(lua_State* L)
{
    lua_getmetatable(L, 1);
    if (lua_rawgetp(L, -1, &namesKey) == LUA_TNIL) {
        lua_pop(L, 1);
        std::vector<std::string> names;
        if (auto const cls = publishedClass(L, checkObject(L, 1)))
            for (PropertyRecord const& property : cls->properties)
                if (property.isVisible && !property.isStatic && isReadable(property))
                    names.push_back(property.name);
        pushSequence(L, names.size(), [&](std::size_t i) { pushText(L, names[i]); });
        lua_pushvalue(L, -1);
        lua_rawsetp(L, -3, &namesKey);
    }
    lua_remove(L, -2);
}

/// "total = 3.0"
std::string shownProperty(lua_State* L, hvArray_tag* object, std::string const& name)
{
    return name + " = " + summary(L, readForShow(L, object, name));
}

/// "(total = 3.0, last = 1.0)" in the width that `used` leaves of a line; empty when the class has no properties.
std::string shownProperties(lua_State* L, std::size_t used)
{
    constexpr std::string_view rest = ", ...)";
    HostCall call(L);
    hvArray_tag* const object = call.share(checkObject(L, 1)); // a getter may have the script release it
    pushShownNames(L);
    std::string text;
    for (lua_Integer i = 1; lua_rawgeti(L, 2, i) == LUA_TSTRING; ++i) {
        std::string const next = (i > 1 ? ", " : "(") + shownProperty(L, object, std::string(textAt(L, -1)));
        lua_pop(L, 1);
        if (used + displayWidth(text) + displayWidth(next) + rest.size() > maxObjectText)
            return i > 1 ? text.append(rest) : "(...)";
        text += next;
    }
    return text.empty() ? text : text + ')';
}

int textWithProperties(lua_State* L)
{
    luaL_checkstack(L, 8, nullptr);
    lua_settop(L, 1);
    std::string const cls(objectClass(L, 1));
    std::string const properties =
        HostContext::of(L).isShowing() ? std::string() : shownProperties(L, displayWidth(cls) + 1);
    pushText(L, cls + ' ' + (properties.empty() ? "object" : properties));
    return 1;
}

} // namespace

void bindObjectText(lua_State* L)
{
    describeObjectsWith(L, guarded<textWithProperties>);
}

} // namespace velmara::console
