#pragma once

#include "velmara/ArrayPtr.hpp"

#include "host_extensions/functionValues.hpp"

#include <functional>
#include <vector>

/// What the tests' functions are: the arrays that they are given, and the one that they give.
using Body = std::function<velmara::ArrayPtr(std::vector<hvArray_tag*>)>;

/// A function without a signature, as scripts have them.
class Untyped final : public orbis::COSMethodInfo {
public:
    explicit Untyped(Body body) : body_(std::move(body)) {}

    char const* getName() const override { return "untyped"; }
    orbis::COSMethodSignature const* getMethodSignature() const override { return nullptr; }

    void invoke(orbis::COSClient const*, int& outputCount, orbis::COSValue* outputs, int inputCount,
                orbis::COSValue const* inputs) const override
    {
        std::vector<hvArray_tag*> arrays;
        for (int i = 0; i < inputCount; ++i)
            arrays.push_back(inputs[i].array());
        velmara::ArrayPtr result = body_(arrays);
        outputCount = result ? 1 : 0;
        outputs[0] = orbis::COSValue(result.release());
    }

private:
    Body body_;
};

inline velmara::ArrayPtr untyped(Body const& body)
{
    return velmara::ArrayPtr(orbis::host_extensions::createFunction(new Untyped(body)));
}
