#pragma once

#include "handles/ArrayStack.hpp"
#include "handles/HostContext.hpp"

#include <utility>
#include <vector>

namespace velmara::console {

/// One call from a script to the host: converts the Lua function's arguments to inputs, pushes the result, and releases
/// all arrays of the call at its end.
class HostCall {
public:
    explicit HostCall(lua_State* L)
        : L_(L),
          host_(HostContext::of(L)),
          frame_(host_.arrays()),
          previous_(std::exchange(host_.running(), L)),
          keepsArray_(std::exchange(host_.keepsNextArray(), false))
    {
    }
    HostCall(HostCall const&) = delete;
    HostCall& operator=(HostCall const&) = delete;
    ~HostCall() { host_.running() = previous_; }

    Hvm& hvm() { return host_.hvm(); }

    /// Shares ownership of an array for the length of the call: the script may release it meanwhile.
    hvArray_tag* share(hvArray_tag* array);

    /// The values for the function's arguments from the `first` on: scalars, and host arrays of the call. Call once.
    Hvm::Values values(int first);

    /// The host arrays for them. Call once.
    Hvm::Inputs inputs(int first);

    /// Where the call's last operation puts its failure.
    Hvm::Failure& failure() { return failure_; }

    /// Pushes the result, where there is one; returns the number of values pushed. After a failure pushes that, and
    /// returns `raised`.
    int finish(Value result);
    int finish(ArrayPtr result) { return finish(Value(std::move(result))); }

private:
    static constexpr int inlineCapacity = 8;

    int finishArray(ArrayPtr result, ValueShape shape);

    lua_State* L_;
    HostContext& host_;
    ArrayStack::Frame frame_;
    lua_State* previous_;
    bool keepsArray_;
    Hvm::Failure failure_;
    std::vector<orbis::COSValue> moreValues_; ///< where there are more than `inlineCapacity`
    union {
        orbis::COSValue inlineValues_[inlineCapacity]; ///< not initialized
    };
};

} // namespace velmara::console
