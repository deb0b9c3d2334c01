#include "handles/HostObject.hpp"

#include "handles/HostContext.hpp"
#include "handles/ObjectValues.hpp"
#include "handles/ValueText.hpp"
#include "lua/ScriptError.hpp"
#include "lua/Table.hpp"

#include "host_extensions/NativeOwner.hpp"
#include "host_extensions/host_extensions.hpp"
#include "orbis/objectArrays.hpp"

#include <new>
#include <string>

namespace velmara::console {

namespace {

char const completionKey = 0;  // its address is the key of what completes metatables in the registry
char const descriptionKey = 0; // likewise, of what describes objects
char const objectMark = 0;     // its address tells objects from other values

/// The value of an object. No other userdata has this size and begins with the mark.
struct ObjectHolder {
    void const* mark = &objectMark;
    HeldArrays::Holder held;
    orbis::COSInterface* host = nullptr; ///< valid while the array is held
};

/// Null for any other value.
ObjectHolder* testHolder(lua_State* L, int index)
{
    auto* const holder = static_cast<ObjectHolder*>(lua_touserdata(L, index));
    return holder && lua_rawlen(L, index) == sizeof(ObjectHolder) && holder->mark == &objectMark ? holder : nullptr;
}

[[noreturn, gnu::noinline]] void throwNoObject(lua_State* L, int index)
{
    fail("noObject", kindAt(L, index) + " is no object");
}

HeldArrays::Holder& holderAt(lua_State* L, int index)
{
    ObjectHolder* const holder = testHolder(L, index);
    if (!holder) [[unlikely]]
        throwNoObject(L, index);
    return holder->held;
}

orbis::COSInterface* hostIn(hvArray_tag const* array, std::size_t index = 0)
{
    return array ? static_cast<orbis::COSInterface*>(orbis::omGetArrayElement(array, index)) : nullptr;
}

int releaseObject(lua_State* L)
{
    HostContext& context = HostContext::of(L);
    HeldArrays::Holder& holder = holderAt(L, 1);
    OwnedFunctions& functions = context.ownedFunctions();
    if (!functions.empty() && !context.isClosing())
        if (orbis::COSInterface const* const host = hostIn(holder.array); functions.isValue(host, lua_touserdata(L, 1)))
            functions.release(L, host, 1);
    context.heldArrays().release(holder).reset();
    return 0;
}

/// Whether anything but a value of the script may use the object.
bool isUsedElsewhere(HostContext& context, orbis::COSInterface const* host, hvArray_tag const* array)
{
    if (!isValid(array))
        return false;
    Hvm::Scope const scope(context.hvm());
    auto const* const owner = orbis::host_extensions::nativeOwnerOf(host);
    return host->getExternalReferenceCount() > 0 || host->getInternalReferenceCount() > 1 || !owner ||
           !owner->ownsAlone(host);
}

/// Lua has found the value to be garbage.
int collectObject(lua_State* L)
{
    HostContext& context = HostContext::of(L);
    HeldArrays::Holder const& holder = holderAt(L, 1);
    OwnedFunctions& functions = context.ownedFunctions();
    orbis::COSInterface const* const host = functions.empty() ? nullptr : hostIn(holder.array);
    if (host && !context.isClosing() && functions.isValue(host, lua_touserdata(L, 1)) &&
        (functions.isWanted(host) || isUsedElsewhere(context, host, holder.array))) {
        functions.keep(L, host, 1);
        return 0;
    }
    return releaseObject(L);
}

/// The name of the enumerator at `index`; null for other objects.
char const* enumeratorName(lua_State* L, int index)
{
    hvArray_tag const* const array = holderAt(L, index).array;
    auto const* const enumerator =
        array ? orbis::host_extensions::describeEnumerator(orbis::omGetArrayElement(array, 0)) : nullptr;
    return enumerator ? enumerator->name : nullptr;
}

int objectText(lua_State* L)
{
    if (char const* name = enumeratorName(L, 1)) {
        pushText(L, name);
        return 1;
    }
    bool const isAlive = isValidObject(L, 1);
    if (isAlive && lua_rawgetp(L, LUA_REGISTRYINDEX, &descriptionKey) == LUA_TFUNCTION) {
        lua_pushvalue(L, 1);
        lua_call(L, 1, 1);
        return 1;
    }
    pushText(L, (isAlive ? "" : "invalid ") + std::string(objectClass(L, 1)) + " object");
    return 1;
}

int compareObjects(lua_State* L)
{
    ObjectHolder const* const a = testHolder(L, 1);
    ObjectHolder const* const b = testHolder(L, 2);
    lua_pushboolean(L, a && b && a->held.array && b->held.array && isSameObject(a->held.array, b->held.array));
    return 1;
}

/// Pushes the metatable of a class by its shared name.
void pushMetatable(lua_State* L, std::string_view className)
{
    HostContext::of(L).answers().metatables.push(L);
    if (lua_rawgetp(L, -1, className.data()) != LUA_TTABLE) [[unlikely]] {
        lua_pop(L, 1);
        lua_newtable(L);
        setField(L, "__gc", guarded<collectObject>);
        setField(L, "__close", guarded<releaseObject>);
        setField(L, "__eq", guarded<compareObjects>);
        setField(L, "__tostring", guarded<objectText>);
        setField(L, "__name", className);
        setField(L, "__metatable", className);
        lua_rawgetp(L, LUA_REGISTRYINDEX, &completionKey);
        lua_pushvalue(L, -2);
        pushText(L, className);
        lua_call(L, 2, 0);
        lua_pushvalue(L, -1);
        lua_rawsetp(L, -3, className.data()); // last: a shortage of memory leaves none that is half done
    }
    lua_replace(L, -2);
}

/// Pushes the value that holds the object already; false, and nothing pushed, when there is none.
bool pushKnown(lua_State* L, orbis::COSInterface const* host)
{
    pushRecordedValue(L, host);
    if (auto const* const holder = static_cast<ObjectHolder*>(lua_touserdata(L, -1));
        holder && holder->held.array && holder->host == host)
        return true;
    lua_pop(L, 1);
    return false;
}

void pushNew(lua_State* L, HostContext& context, orbis::COSInterface* host)
{
    ArrayStack::Frame frame(context.arrays());
    hvArray_tag* const scalar = frame.push(ArrayPtr(orbis::omCreateORBISScalar(host)));
    auto* const holder =
        new (lua_newuserdatauv(L, sizeof(ObjectHolder), 1)) ObjectHolder; // its user value: see OwnedFunctions
    pushMetatable(L, sharedClassName(scalar));
    lua_setmetatable(L, -2);
    scalar->add_reference();
    context.heldArrays().hold(holder->held, ArrayPtr(scalar));
    holder->host = host;
    recordValue(L, host, -1, holder->held.slot);
}

} // namespace

void pushObject(lua_State* L, hvArray_tag const* array, std::size_t index)
{
    HostContext& context = HostContext::of(L);
    context.requireOpen();
    orbis::COSInterface* const host = hostIn(array, index);
    if (!host)
        return lua_pushnil(L);
    OwnedFunctions& functions = context.ownedFunctions();
    bool const hasFunctions = functions.has(host);
    if (!(hasFunctions && functions.pushValue(L, host)) && !pushKnown(L, host))
        pushNew(L, context, host);
    if (hasFunctions && !functions.isValue(host, lua_touserdata(L, -1)))
        functions.anchor(L, host);
}

void completeMetatablesWith(lua_State* L, lua_CFunction complete)
{
    lua_pushcfunction(L, complete);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &completionKey);
}

void describeObjectsWith(lua_State* L, lua_CFunction describe)
{
    lua_pushcfunction(L, describe);
    lua_rawsetp(L, LUA_REGISTRYINDEX, &descriptionKey);
}

bool isObject(lua_State* L, int index)
{
    return testHolder(L, index) != nullptr;
}

namespace {

[[noreturn, gnu::noinline]] void throwClosed(lua_State* L, int index)
{
    fail("closed", "this object of " + std::string(objectClass(L, index)) + " was given back");
}

} // namespace

hvArray_tag* testObject(lua_State* L, int index)
{
    ObjectHolder const* const holder = testHolder(L, index);
    if (holder && !holder->held.array) [[unlikely]]
        throwClosed(L, index);
    return holder ? holder->held.array : nullptr;
}

hvArray_tag* checkObject(lua_State* L, int index)
{
    hvArray_tag* const array = holderAt(L, index).array;
    if (!array) [[unlikely]]
        throwClosed(L, index);
    return array;
}

std::string_view objectClass(lua_State* L, int index)
{
    holderAt(L, index);
    luaL_getmetafield(L, index, "__name");
    std::string_view const name = textAt(L, -1);
    lua_pop(L, 1); // the metatable still holds it
    return name;
}

bool isValidObject(lua_State* L, int index)
{
    hvArray_tag const* const array = holderAt(L, index).array;
    return array && isValid(array);
}

} // namespace velmara::console
