#pragma once

#include "handles/ArrayStack.hpp"
#include "handles/HostContext.hpp"

#include <utility>

namespace velmara::console {

/// One crossing from a script to the host: the inputs are taken from the Lua function's arguments, the result is
/// pushed, and all arrays of the crossing are given back at its end.
class HostCall {
public:
    explicit HostCall(lua_State* L)
        : L_(L),
          host_(HostContext::of(L)),
          kept_(host_.arrays()),
          keepsArray_(std::exchange(host_.keepsNextArray(), false))
    {
    }

    Hvm& hvm() { return host_.hvm(); }

    /// Keeps an array alive for the length of the call, whatever happens to its owner.
    hvArray_tag* keep(hvArray_tag* array);

    /// The host arrays for the function's arguments from the `first` on. Asked for once.
    Hvm::Inputs inputs(int first);

    /// Pushes the result, where there is one; gives the number of values pushed.
    int finish(ArrayPtr result);

private:
    lua_State* L_;
    HostContext& host_;
    ArrayStack::Frame kept_;
    bool keepsArray_;
};

} // namespace velmara::console
