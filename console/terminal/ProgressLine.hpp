#pragma once

#include <chrono>
#include <cstddef>

namespace velmara::console {

/// A line at the terminal of standard error that tells how far a loop is, when that takes longer than a second: "12 of
/// 40 (30 %), 28 s left". Allocates nothing.
class ProgressLine {
public:
    explicit ProgressLine(std::size_t total);

    /// Call before each round.
    void update(std::size_t done)
    {
        if (isWanted_ && Clock::now() >= next_)
            draw(done);
    }

    /// Erases the line at the terminal, if there is one. Call at the end of the loop, there is no destructor; and
    /// before something is printed.
    static void erase();

private:
    using Clock = std::chrono::steady_clock;

    void draw(std::size_t done);

    std::size_t total_;
    Clock::time_point start_;
    Clock::time_point next_; ///< when it is to be drawn
    bool isWanted_;
};

} // namespace velmara::console
