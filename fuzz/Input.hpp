#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Reads the fuzzer's input from the beginning, and zeros after its end.
class Input {
public:
    Input(std::uint8_t const* data, std::size_t size) : next_(data), end_(data + size) {}

    bool isAtEnd() const { return next_ == end_; }
    std::uint8_t byte() { return isAtEnd() ? 0 : *next_++; }

    /// Returns a number below `count`, which is not 0.
    std::size_t pick(std::size_t count) { return (count > 256 ? byte() * 256u + byte() : byte()) % count; }

    std::string text(std::size_t maxSize)
    {
        std::string text;
        for (std::size_t size = pick(maxSize + 1); size > 0 && !isAtEnd(); --size)
            text += static_cast<char>(byte());
        return text;
    }

private:
    std::uint8_t const* next_;
    std::uint8_t const* end_;
};
