#include "terminal/ProgressLine.hpp"

#include "terminal/Terminal.hpp"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace velmara::console {

namespace {

using namespace std::chrono_literals;

constexpr auto delay = 1s;
constexpr auto interval = 100ms;

std::size_t drawnLength = 0; // of the line at the terminal of the process; 0 for none

/// "28 s left", "3 min 20 s left", "2 h 5 min left".
std::array<char, 64> timeLeft(double seconds)
{
    auto const whole = static_cast<long long>(std::ceil(seconds));
    long long const minutes = whole / 60;
    std::array<char, 64> text;
    if (minutes == 0)
        std::snprintf(text.data(), text.size(), "%lld s left", whole);
    else if (minutes < 60)
        std::snprintf(text.data(), text.size(), "%lld min %lld s left", minutes, whole % 60);
    else
        std::snprintf(text.data(), text.size(), "%lld h %lld min left", minutes / 60, minutes % 60);
    return text;
}

std::array<char, 160> progressText(std::size_t done, std::size_t total, double seconds)
{
    double const share = static_cast<double>(done) / static_cast<double>(total);
    auto const left = done > 0 ? timeLeft(seconds * (1 / share - 1)) : std::array<char, 64>();
    std::array<char, 160> text;
    std::snprintf(text.data(), text.size(), "%zu of %zu (%d %%)%s%s", done, total, static_cast<int>(share * 100),
                  done > 0 ? ", " : "", left.data());
    return text;
}

} // namespace

ProgressLine::ProgressLine(std::size_t total)
    : total_(total),
      start_(Clock::now()),
      next_(start_ + delay),
      isWanted_(isScreen(stderr))
{
}

void ProgressLine::erase()
{
    if (drawnLength == 0)
        return;
    eraseLine(stderr, drawnLength);
    std::fflush(stderr);
    drawnLength = 0;
}

void ProgressLine::draw(std::size_t done)
{
    Clock::time_point const now = Clock::now();
    // The cursor stays at the beginning: what native code prints meanwhile takes the line's place.
    std::fflush(stdout);
    auto const text = progressText(done, total_, std::chrono::duration<double>(now - start_).count());
    eraseLine(stderr, drawnLength);
    std::fprintf(stderr, "%s\r", text.data());
    std::fflush(stderr);
    next_ = now + interval;
    drawnLength = std::strlen(text.data());
}

} // namespace velmara::console
