#include "values/LuaFunction.hpp"

#include "lua/ChangeWatch.hpp"
#include "lua/ScriptError.hpp"
#include "lua/ScriptFailure.hpp"
#include "values/ValueToHost.hpp"
#include "values/ValueToLua.hpp"

#include <exception>
#include <span>

namespace velmara::console {

namespace {

/// One call, which runs in Lua's protected mode. Nothing but Lua's own errors may be thrown through that.
struct Call {
    LuaFunction const& function;
    std::span<orbis::COSValue const> inputs;
    ArrayPtr result;
    std::exception_ptr failure;

    void run(lua_State* L);
};

ArrayPtr firstResult(lua_State* L, int index)
{
    try {
        return toHost(L, index);
    } catch (Error const& error) {
        throw Error(error.identifier(), "the function's result: " + error.text());
    }
}

void Call::run(lua_State* L)
{
    luaL_checkstack(L, static_cast<int>(inputs.size()) + 8, "too many inputs");
    ChangeWatch::check(L);
    lua_pushcfunction(L, recordFailure);
    int const base = lua_gettop(L);
    function.push(L);
    for (orbis::COSValue const& input : inputs)
        pushValue(L, input.array());
    int const status = lua_pcall(L, static_cast<int>(inputs.size()), LUA_MULTRET, base);
    if (status == LUA_ERRMEM)
        throw Error(Error::outOfMemory());
    if (status != LUA_OK)
        throw failureOf(L, -1);
    if (lua_gettop(L) > base)
        result = firstResult(L, base + 1);
}

int runProtected(lua_State* L)
{
    auto& call = *static_cast<Call*>(lua_touserdata(L, 1));
    try {
        call.run(L);
    } catch (std::exception const&) {
        call.failure = std::current_exception();
    }
    return 0;
}

/// What Lua raised in `runProtected` itself, with the error value on top of the stack.
[[noreturn]] void throwRaised(lua_State* L, int status)
{
    std::string const text(textAt(L, -1));
    lua_pop(L, 1);
    if (status == LUA_ERRMEM)
        throw Error(Error::outOfMemory());
    throw Error(scriptErrorIdentifier, text);
}

} // namespace

LuaFunction::LuaFunction(lua_State* L, int index) : host_(HostContext::of(L))
{
    luaL_checkstack(L, 4, nullptr);
    lua_pushvalue(L, index);
    reference_ = luaL_ref(L, LUA_REGISTRYINDEX);
}

LuaFunction::~LuaFunction()
{
    if (owner_)
        host_.ownedFunctions().remove(owner_, *this);
    lua_State* const L = host_.running();
    if (L && lua_checkstack(L, 4))
        luaL_unref(L, LUA_REGISTRYINDEX, reference_);
}

bool LuaFunction::push(lua_State* L) const
{
    bool const isOurs = &HostContext::of(L) == &host_;
    if (!isOurs)
        return false;
    if (reference_ != LUA_NOREF)
        pushHeld(L);
    else if (!host_.ownedFunctions().pushFunction(L, owner_, *this))
        fail("lost", "a function of the script is lost, because memory was exhausted");
    return true;
}

void LuaFunction::setOwner(orbis::COSInterface* owner)
{
    if (owner_)
        return;
    host_.ownedFunctions().add(owner, *this);
    owner_ = owner;
}

void LuaFunction::pushHeld(lua_State* L) const
{
    lua_rawgeti(L, LUA_REGISTRYINDEX, reference_);
}

void LuaFunction::drop(lua_State* L) noexcept
{
    luaL_unref(L, LUA_REGISTRYINDEX, reference_);
    reference_ = LUA_NOREF;
}

void LuaFunction::hold(lua_State* L)
{
    reference_ = luaL_ref(L, LUA_REGISTRYINDEX);
    owner_ = nullptr;
}

void LuaFunction::invoke(orbis::COSClient const*, int& outputCount, orbis::COSValue* outputs, int inputCount,
                         orbis::COSValue const* inputs) const
{
    lua_State* const L = host_.running();
    if (!L || host_.isClosing())
        fail("ending", "the script has ended: its functions cannot be called any more");
    if (!lua_checkstack(L, 3))
        throw Error(Error::outOfMemory());
    ArrayStack::Frame frame(host_.arrays());
    for (int i = 0; i < inputCount; ++i)
        if (hvArray_tag* const array = inputs[i].array()) {
            array->add_reference();
            frame.push(ArrayPtr(array));
        }
    HostContext::Callback const callback(host_);
    Call call{*this, {inputs, static_cast<std::size_t>(inputCount)}, {}, {}};
    lua_pushcfunction(L, runProtected);
    lua_pushlightuserdata(L, &call);
    if (int const status = lua_pcall(L, 1, 0, 0); status != LUA_OK)
        throwRaised(L, status);
    if (call.failure)
        std::rethrow_exception(call.failure);
    if (!call.result)
        return;
    outputs[0] = orbis::COSValue(call.result.release());
    if (outputCount == 0)
        outputCount = 1;
}

} // namespace velmara::console
