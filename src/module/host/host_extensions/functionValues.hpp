#pragma once

#include "libhv/hvArray.hpp"
#include "orbis/COSMethodInfo.hpp"
#include "orbis/COSValue.hpp"

#include <memory>

/// Functions as values: a 1-by-1 array of a class of its own, named "function", holds one. Copies of the array share
/// the function.
///
/// The data type "function" takes such arrays, and no others. It may show what the function takes and returns, as in
/// "function(double scalar, char vector) -> double scalar", which is not checked until the function is called.
namespace orbis::host_extensions {

/// The class of arrays that hold a function, after those of `hvClassID`.
inline constexpr auto functionClass = static_cast<hvClassID>(hvOBJECT_CLASS + 1);

/// Returns a new array, owned by the caller, that holds a function of the current virtual machine. `callable` is called
/// like a package function. If it has no signature, its inputs are arrays as they are given, of any number, and its
/// result is any array.
///
/// Takes ownership of `callable`, also when it throws. It is destroyed with the last array and `FunctionHandle` of the
/// function, or with the virtual machine; in both cases on the thread of the virtual machine, which is current.
ORBIS_HOST_API hvArray* createFunction(COSMethodInfo* callable);

/// Returns what `createFunction` was passed; null if the array (null allowed) holds no function, or its virtual machine
/// has ended.
ORBIS_HOST_API COSMethodInfo* getFunction(hvArray_tag const* array) noexcept;

/// Keeps a function for native code. Copied and destroyed on any thread, also after the virtual machine has ended. If
/// the last one is destroyed where the virtual machine is not current, the function is destroyed later.
class ORBIS_HOST_API FunctionHandle {
public:
    /// Throws "VELMARA:array:notFunction" when the array holds no function.
    explicit FunctionHandle(hvArray_tag const* array);
    FunctionHandle(FunctionHandle const& other) noexcept;
    FunctionHandle& operator=(FunctionHandle const& other) noexcept;
    ~FunctionHandle();

private:
    friend class FunctionCall;
    friend ORBIS_HOST_API hvArray* createFunction(FunctionHandle const& function);

    void* function_;
};

/// Returns a new array, owned by the caller, that holds the same function.
ORBIS_HOST_API hvArray* createFunction(FunctionHandle const& function);

/// One call of a function by native code. Threading: on the thread of the function's virtual machine.
class ORBIS_HOST_API FunctionCall {
public:
    /// Throws "VELMARA:function:ended" when the function's virtual machine has ended, "VELMARA:function:notCurrent"
    /// when none is current on this thread, and "VELMARA:function:otherVirtualMachine" when another one is.
    explicit FunctionCall(FunctionHandle const& function);
    FunctionCall(FunctionCall const&) = delete;
    FunctionCall& operator=(FunctionCall const&) = delete;
    ~FunctionCall();

    /// Adds an input, a value of the data type, which is converted as the result of a member is. Takes ownership of it,
    /// also when it throws.
    void addInput(char const* dataType, COSValue value);

    /// Calls the function once, and returns its result as a value of the data type, converted as an input of a member
    /// is; an empty value for "void". The value belongs to the call. Throws what the function throws, and
    /// "VELMARA:function:result" when the result does not fit.
    COSValue const& invoke(char const* resultType);

private:
    struct State;

    std::unique_ptr<State> state_;
};

} // namespace orbis::host_extensions
