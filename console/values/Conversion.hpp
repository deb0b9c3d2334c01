#pragma once

#include "lua/ScriptError.hpp"

#include <cstddef>
#include <string>

namespace velmara::console {

/// How far one conversion between a Lua value and the host has come. A table or a cell array may be in another many
/// times over, so that little can stand for more than any memory holds: what is made is limited.
class Conversion {
public:
    /// Tables and cells may be nested this deep.
    static constexpr int deepest = 200;

    /// So many tables or cell arrays may be met, those met again included.
    static constexpr int most = 1 << 20;

    /// What one conversion may make, and one array of a script may hold.
    static constexpr std::size_t mostBytes = std::size_t{1} << 30;

    /// One level deeper while it lives.
    class Level {
    public:
        Level(Conversion& conversion, char const* what) : conversion_(conversion)
        {
            if (conversion.depth_ >= deepest)
                fail("nesting", std::string(what) + " nested deeper than " + std::to_string(deepest) +
                                    " levels, or in themselves, cannot be converted");
            if (++conversion.met_ > most)
                fail("memory", "more than a million " + std::string(what) + " in one value cannot be converted");
            ++conversion.depth_;
        }
        Level(Level const&) = delete;
        Level& operator=(Level const&) = delete;
        ~Level() { --conversion_.depth_; }

    private:
        Conversion& conversion_;
    };

    /// Counts `count` elements of that size.
    void add(std::size_t count, std::size_t size)
    {
        if (count > mostBytes / size || bytes_ > mostBytes - count * size)
            fail("memory", "a value of more than 1 GB cannot be made");
        bytes_ += count * size;
    }

private:
    int depth_ = 0;
    int met_ = 0;
    std::size_t bytes_ = 0;
};

} // namespace velmara::console
