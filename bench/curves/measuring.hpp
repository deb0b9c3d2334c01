#pragma once

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <vector>

namespace bench {

/// The processor time of this thread, in nanoseconds: what other programs take meanwhile does not count.
inline double processorTime()
{
    std::timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

/// Of the heap.
inline double bytesInUse()
{
    auto const memory = mallinfo2();
    return static_cast<double>(memory.uordblks + memory.hblkhd);
}

/// The nanoseconds of one of `count` repetitions, which `run(count)` makes.
template <class Run>
double timeOfOne(std::size_t count, Run run)
{
    double const start = processorTime();
    run(count);
    return (processorTime() - start) / static_cast<double>(count);
}

inline double median(std::vector<double> values)
{
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of some rounds.
template <class Run>
double medianOfOne(std::size_t count, Run run)
{
    std::vector<double> rounds(5);
    for (double& round : rounds)
        round = timeOfOne(count, run);
    return median(rounds);
}

} // namespace bench
