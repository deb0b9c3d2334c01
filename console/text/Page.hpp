#pragma once

#include "text/Screen.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace velmara::console {

/// Lines of text that fit a screen: each is cut to its width, and all of them to its height.
class Page {
public:
    explicit Page(Screen screen) : screen_(screen) {}

    /// The columns that are left after an indentation and `used` more.
    std::size_t columnsAfter(std::size_t used) const
    {
        constexpr std::size_t minColumns = 20;
        return used + minColumns < screen_.columns ? screen_.columns - used : minColumns;
    }

    /// Adds a line; nothing when the page is full.
    void add(std::size_t indent, std::string_view line);

    std::size_t rowsLeft() const { return screen_.rows - rows_; }

    bool isFull() const { return rows_ >= screen_.rows; }

    /// All lines, each with its end; for the lines that found no place "...".
    std::string const& text() const { return text_; }

private:
    Screen screen_;
    std::size_t rows_ = 0;
    std::string text_;
};

} // namespace velmara::console
