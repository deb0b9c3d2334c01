#include "host_extensions/functionValues.hpp"

#include "arrays/arrayArguments.hpp"
#include "dispatch/ConvertedInputs.hpp"
#include "dispatch/FunctionValue.hpp"
#include "dispatch/ResultValue.hpp"
#include "dispatch/mismatchReason.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

#include <optional>
#include <utility>
#include <vector>

namespace orbis::host_extensions {

using namespace velmara;

namespace {

/// Releases a function that native code holds.
struct Release {
    void operator()(HeldFunction* function) const noexcept { function->releaseAnywhere(); }
};

HeldFunction& heldIn(void* function)
{
    return *static_cast<HeldFunction*>(function);
}

} // namespace

hvArray* createFunction(COSMethodInfo* callable)
{
    std::unique_ptr<COSMethodInfo> owned(callable);
    Machine& machine = Machine::required();
    if (!owned)
        throwHostError("VELMARA:function", "null");
    std::unique_ptr<HeldFunction, Release> const function(
        &machine.functions().add(std::make_unique<FunctionValue>(std::move(owned))));
    return Array::createFunction(*function);
}

COSMethodInfo* getFunction(hvArray_tag const* array) noexcept
{
    FunctionValue const* const value = array ? FunctionValue::of(Array::of(array)->function()) : nullptr;
    return value ? value->method.info.get() : nullptr;
}

FunctionHandle::FunctionHandle(hvArray_tag const* array) : function_(requireArray(array).function())
{
    if (!function_)
        throwWrongClass(*Array::of(array), "notFunction");
    heldIn(function_).addReference();
}

FunctionHandle::FunctionHandle(FunctionHandle const& other) noexcept : function_(other.function_)
{
    heldIn(function_).addReference();
}

FunctionHandle& FunctionHandle::operator=(FunctionHandle const& other) noexcept
{
    FunctionHandle copy(other);
    std::swap(function_, copy.function_);
    return *this;
}

FunctionHandle::~FunctionHandle()
{
    heldIn(function_).releaseAnywhere();
}

hvArray* createFunction(FunctionHandle const& function)
{
    return Array::createFunction(heldIn(function.function_));
}

struct FunctionCall::State {
    explicit State(FunctionHandle const& called)
        : handle(called),
          value(FunctionValue::required(heldIn(called.function_)))
    {
    }

    FunctionHandle handle; ///< the function may be released while it runs
    FunctionValue& value;
    std::vector<ArrayPtr> inputs;
    ArrayPtr result;
    ConvertedInputs converted{1};
    COSValue none;
};

FunctionCall::FunctionCall(FunctionHandle const& function) : state_(std::make_unique<State>(function)) {}

FunctionCall::~FunctionCall() = default;

void FunctionCall::addInput(char const* dataType, COSValue value)
{
    TypeReference const type(COSNameID(dataType).interned());
    ResultValue owned(&type, value);
    ArrayPtr array = owned.takeAsArray(state_->value.method.name);
    if (!array) // no object, no function: as scripts pass it
        array.reset(Array::create(hvDOUBLE_CLASS, 0, 0));
    state_->inputs.push_back(std::move(array));
}

COSValue const& FunctionCall::invoke(char const* resultType)
{
    TypeReference const type(COSNameID(resultType).interned());
    std::vector<hvArray_tag*> inputs;
    for (ArrayPtr const& input : state_->inputs)
        inputs.push_back(input.get());
    state_->result = state_->value.call(inputs);
    if (type.kind == TypeKind::Void)
        return state_->none;
    if (!state_->result)
        throwHostError("VELMARA:function", "noResult", {type.name->string()});
    if (state_->converted.add(type, state_->result.get()) == notConvertible)
        throwHostError("VELMARA:function", "result", {mismatchReason(type, state_->result.get())});
    return state_->converted.values()[0];
}

} // namespace orbis::host_extensions
