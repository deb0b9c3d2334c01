#pragma once

#include "handles/HostContext.hpp"
#include "lua/LuaApi.hpp"

#include "host_extensions/OwnedFunction.hpp"
#include "orbis/COSMethodInfo.hpp"

namespace velmara::console {

/// A function of the script, for the host: takes and returns any values. What it raises leaves it as a `ScriptFailure`.
class LuaFunction final : public orbis::COSMethodInfo,
                          public orbis::host_extensions::OwnedFunction,
                          private OwnedFunctions::Function {
public:
    /// Keeps the Lua function at `index`.
    LuaFunction(lua_State* L, int index);
    ~LuaFunction() override;

    /// Pushes the Lua function; does nothing and returns false in another Lua state.
    bool push(lua_State* L) const;

    char const* getName() const override { return "function"; }
    orbis::COSMethodSignature const* getMethodSignature() const override { return nullptr; }
    void invoke(orbis::COSClient const* client, int& outputCount, orbis::COSValue* outputs, int inputCount,
                orbis::COSValue const* inputs) const override;

    /// The first owner counts.
    void setOwner(orbis::COSInterface* owner) override;

private:
    void pushHeld(lua_State* L) const override;
    void drop(lua_State* L) noexcept override;
    void hold(lua_State* L) override;

    HostContext& host_;
    OwnedFunctions::Host owner_ = nullptr;
    int reference_; ///< to the function in the registry; `LUA_NOREF` while the value of the owner holds it
};

} // namespace velmara::console
