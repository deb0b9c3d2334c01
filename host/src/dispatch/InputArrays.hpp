#pragma once

#include "dispatch/CallInputs.hpp"

#include "orbis/COSValue.hpp"

#include <vector>

namespace velmara {

/// The inputs of a call as arrays, of which it owns those that it created for scalars.
class InputArrays {
public:
    explicit InputArrays(std::span<orbis::COSValue const> values);
    InputArrays(InputArrays const&) = delete;
    InputArrays& operator=(InputArrays const&) = delete;
    ~InputArrays();

    Inputs get() const { return {arrays_, count_}; }

private:
    static constexpr std::size_t inlineCapacity = 24;

    InputArrays() = default;

    hvArray_tag** arrays_ = inlineArrays_;
    std::size_t count_ = 0;
    orbis::COSValue const* values_ = nullptr;
    std::vector<hvArray_tag*> more_; ///< where there are more than `inlineCapacity`
    union {
        hvArray_tag* inlineArrays_[inlineCapacity]; ///< not initialized
    };
};

} // namespace velmara
