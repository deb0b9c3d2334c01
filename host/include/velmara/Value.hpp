#pragma once

#include "velmara/ArrayPtr.hpp"

#include "orbis/COSValue.hpp"

#include <cstdint>
#include <utility>

namespace velmara {

/// What a signature says of an array: a list of objects may have one element or none, and "[]" is the absence of an
/// optional value.
enum class ValueShape : std::uint8_t { Plain, List, Optional };

/// A value with its owner: nothing, a scalar, which needs no memory, or an array.
class Value {
public:
    Value() = default;

    /// Takes ownership of the array in `slot`, where it holds one.
    explicit Value(orbis::COSValue slot) noexcept : slot_(slot) {}

    /// Takes ownership of the array; null gives nothing.
    explicit Value(ArrayPtr array, ValueShape shape = ValueShape::Plain) noexcept
        : slot_(array.release()),
          shape_(shape)
    {
    }
    Value(Value&& other) noexcept : slot_(std::exchange(other.slot_, orbis::COSValue())), shape_(other.shape_) {}
    Value& operator=(Value other) noexcept
    {
        std::swap(slot_, other.slot_);
        std::swap(shape_, other.shape_);
        return *this;
    }

    ~Value()
    {
        if (slot_.isArray())
            hvDestroyArray(slot_.array());
    }

    /// The array in it stays this value's.
    orbis::COSValue const& slot() const { return slot_; }
    ValueShape shape() const { return shape_; } ///< how a signature means the array

    /// The array, null where it holds none; this becomes empty.
    ArrayPtr releaseArray() noexcept { return ArrayPtr(std::exchange(slot_, orbis::COSValue()).array()); }

private:
    orbis::COSValue slot_;
    ValueShape shape_ = ValueShape::Plain;
};

} // namespace velmara
