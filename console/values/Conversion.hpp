#pragma once

#include "lua/ScriptError.hpp"

#include <cstddef>
#include <string>

namespace velmara::console {

/// The limits of one conversion between a Lua value and the host. A table or a cell array may occur in others many
/// times over, so a small value can expand to more than any memory holds.
class Conversion {
public:
    /// Nesting of tables and cells.
    static constexpr int maxDepth = 200;

    /// Tables or cell arrays visited, each as often as it occurs.
    static constexpr int maxVisits = 1 << 20;

    /// Memory of what one conversion creates, and of one array of a script.
    static constexpr std::size_t maxBytes = std::size_t{1} << 30;

    /// Counts one level of nesting for its lifetime.
    class Level {
    public:
        Level(Conversion& conversion, char const* what) : conversion_(conversion)
        {
            if (conversion.depth_ >= maxDepth)
                fail("nesting", std::string(what) + " nested deeper than " + std::to_string(maxDepth) +
                                    " levels, or in themselves, cannot be converted");
            if (++conversion.visits_ > maxVisits)
                fail("memory", "more than a million " + std::string(what) + " in one value cannot be converted");
            ++conversion.depth_;
        }
        Level(Level const&) = delete;
        Level& operator=(Level const&) = delete;
        ~Level() { --conversion_.depth_; }

    private:
        Conversion& conversion_;
    };

    /// Counts `count` elements of `size` bytes.
    void add(std::size_t count, std::size_t size)
    {
        if (count > maxBytes / size || bytes_ > maxBytes - count * size)
            fail("memory", "a value of more than 1 GB cannot be made");
        bytes_ += count * size;
    }

private:
    int depth_ = 0;
    int visits_ = 0;
    std::size_t bytes_ = 0;
};

} // namespace velmara::console
