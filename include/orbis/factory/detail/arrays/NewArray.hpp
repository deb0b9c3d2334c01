#pragma once

#include "libhv/libhv.hpp"

#include <utility>

namespace orbis::factory::detail {

/// A host array that was just made, until it is handed on: an exception on the way destroys it.
class NewArray {
public:
    explicit NewArray(hvArray_tag* array = nullptr) : array_(array) {}
    NewArray(NewArray const&) = delete;
    NewArray& operator=(NewArray const&) = delete;

    ~NewArray()
    {
        if (array_)
            hvDestroyArray(array_);
    }

    hvArray_tag* get() const { return array_; }
    hvArray_tag* release() { return std::exchange(array_, nullptr); }

    /// Where a function that makes an array stores it. Only while this is empty.
    hvArray_tag** place() { return &array_; }

private:
    hvArray_tag* array_;
};

} // namespace orbis::factory::detail
