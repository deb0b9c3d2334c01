#pragma once

#include "handles/HostContext.hpp"
#include "lua/LuaApi.hpp"

#include "orbis/COSMethodInfo.hpp"

namespace velmara::console {

/// A function of the script, for the host: takes and returns any values. What it raises leaves it as a `ScriptFailure`.
class LuaFunction final : public orbis::COSMethodInfo {
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

private:
    HostContext& host_;
    int reference_; ///< to the function in the registry
};

} // namespace velmara::console
