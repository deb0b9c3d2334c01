#pragma once

#include "libhv/libhv.hpp"

#include <utility>

namespace orbis::factory::detail {

/// Owner of a newly created host array: destroys it unless it is released.
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

    /// The out-parameter for functions that create an array. Precondition: this is empty.
    hvArray_tag** place() { return &array_; }

private:
    hvArray_tag* array_;
};

} // namespace orbis::factory::detail
