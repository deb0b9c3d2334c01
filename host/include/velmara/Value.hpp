#pragma once

#include "velmara/ArrayPtr.hpp"

#include "orbis/COSValue.hpp"

#include <utility>

namespace velmara {

/// A value with its owner: nothing, a scalar, which needs no memory, or an array.
class Value {
public:
    Value() = default;

    /// Takes ownership of the array in `slot`, where it holds one.
    explicit Value(orbis::COSValue slot) noexcept : slot_(slot) {}
    explicit Value(ArrayPtr array) noexcept : slot_(array.release()) {}
    Value(Value&& other) noexcept : slot_(std::exchange(other.slot_, orbis::COSValue())) {}
    Value& operator=(Value other) noexcept
    {
        std::swap(slot_, other.slot_);
        return *this;
    }

    ~Value()
    {
        if (slot_.isArray())
            hvDestroyArray(slot_.array());
    }

    /// The array in it stays this value's.
    orbis::COSValue const& slot() const { return slot_; }

    /// The array, null where it holds none; this becomes empty.
    ArrayPtr releaseArray() noexcept { return ArrayPtr(std::exchange(slot_, orbis::COSValue()).array()); }

private:
    orbis::COSValue slot_;
};

} // namespace velmara
