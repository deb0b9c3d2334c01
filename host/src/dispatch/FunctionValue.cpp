#include "dispatch/FunctionValue.hpp"

#include "machine/Machine.hpp"

namespace velmara {

FunctionValue::FunctionValue(std::unique_ptr<orbis::COSMethodInfo> callable)
    : method(std::move(callable), nullptr),
      hasSignature_(method.info->getMethodSignature() != nullptr)
{
    group_.add(method);
}

ArrayPtr FunctionValue::call(Inputs inputs) const
{
    return hasSignature_ ? ResultValue::toArray(dispatch(group_, nullptr, inputs, nullptr))
                         : callWithoutSignature(inputs);
}

ArrayPtr FunctionValue::callWithoutSignature(Inputs inputs) const
{
    static TypeReference const any(anyTypeName());
    checkInputs(Machine::required(), inputs);
    ConvertedInputs values(inputs.size());
    for (hvArray_tag* const input : inputs)
        values.addAsIs(input);
    ResultValue result(&any);
    int outputCount = 0;
    method.info->invoke(nullptr, outputCount, &result.slot(), values.count(), values.values());
    return outputCount == 0 ? nullptr : result.takeAsArray(method.name);
}

} // namespace velmara
