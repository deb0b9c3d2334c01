#include "terminal/ProgressLine.hpp"

#include "terminal/Terminal.hpp"

#include <cmath>
#include <cstdio>

namespace velmara::console {

namespace {

using namespace std::chrono_literals;

constexpr auto delay = 1s;
constexpr auto interval = 100ms;

std::size_t drawnLength = 0; // of the line at the terminal of the process; 0 for none

/// "28 s", "3 min 20 s", "2 h 5 min".
std::string durationText(double seconds)
{
    auto const whole = static_cast<long long>(std::ceil(seconds));
    auto const minutes = whole / 60;
    if (minutes == 0)
        return std::to_string(whole) + " s";
    if (minutes < 60)
        return std::to_string(minutes) + " min " + std::to_string(whole % 60) + " s";
    return std::to_string(minutes / 60) + " h " + std::to_string(minutes % 60) + " min";
}

} // namespace

std::string progressText(std::size_t done, std::size_t total, std::chrono::duration<double> elapsed)
{
    double const share = static_cast<double>(done) / static_cast<double>(total);
    std::string text = std::to_string(done) + " of " + std::to_string(total) + " (" +
                       std::to_string(static_cast<int>(share * 100)) + " %)";
    if (done > 0)
        text += ", " + durationText(elapsed.count() * (1 / share - 1)) + " left";
    return text;
}

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
    std::string const text = progressText(done, total_, now - start_);
    eraseLine(stderr, drawnLength);
    std::fprintf(stderr, "%s\r", text.c_str());
    std::fflush(stderr);
    next_ = now + interval;
    drawnLength = text.size();
}

} // namespace velmara::console
