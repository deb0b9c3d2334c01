#pragma once

#include "dispatch/Dispatch.hpp"
#include "machine/HeldFunction.hpp"

#include "velmara/ArrayPtr.hpp"

namespace velmara {

/// The callable of a function value, described like a package function.
struct FunctionValue final : Retirable {
    explicit FunctionValue(std::unique_ptr<orbis::COSMethodInfo> callable);

    static FunctionValue* of(HeldFunction const* function)
    {
        return function ? static_cast<FunctionValue*>(function->callable()) : nullptr;
    }

    /// The callable of a function that can be called here. Throws "VELMARA:function:..." otherwise.
    static FunctionValue& required(HeldFunction const& function)
    {
        return static_cast<FunctionValue&>(function.requireCallable());
    }

    /// Null when there is no result. The inputs stay the caller's.
    ArrayPtr call(Inputs inputs) const;

    Method method;

private:
    ArrayPtr callWithoutSignature(Inputs inputs) const;

    MethodGroup group_;
    bool hasSignature_;
};

} // namespace velmara
