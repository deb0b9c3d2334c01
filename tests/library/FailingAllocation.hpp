#pragma once

#include <cstddef>

/// Lets one allocation of this thread fail: the n-th after it is armed, counted from 0.
class FailingAllocation {
public:
    explicit FailingAllocation(std::size_t n);
    FailingAllocation(FailingAllocation const&) = delete;
    FailingAllocation& operator=(FailingAllocation const&) = delete;
    ~FailingAllocation();

    /// True once it has failed.
    static bool hasFailed();
};
