#pragma once

#include "text/textHash.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace velmara {

/// What was found last under a few names of usual length, so that asking again takes no hash. It may be forgotten at
/// any time; other names are never found here.
template <class T>
class RecentNames {
public:
    [[gnu::always_inline]] T const* find(std::string_view name) const
    {
        Key const key(name);
        Entry const& entry = entries_[key.place()];
        return entry.key == key ? entry.value : nullptr;
    }

    void remember(std::string_view name, T const& value)
    {
        Key const key(name);
        if (key.size != 0)
            entries_[key.place()] = {key, &value};
    }

private:
    static constexpr std::size_t room = 16;

    /// The whole text of a name of 4 to 16 bytes: its first and its last bytes, which may overlap.
    struct Key {
        Key() = default;

        [[gnu::always_inline]] explicit Key(std::string_view name)
        {
            char const* const end = name.data() + name.size();
            if (name.size() - 8 <= 8) {
                first = loadChunk(name.data());
                last = loadChunk(end - 8);
                size = name.size();
            } else if (name.size() - 4 < 4) {
                first = loadShort(name.data(), name.size());
                size = name.size();
            }
        }

        std::size_t place() const { return (first + (last >> 16) + size) % room; }
        bool operator==(Key const&) const = default;

        std::uint64_t first = 0;
        std::uint64_t last = 0;
        std::size_t size = 0; ///< 0 for all names of other lengths, under which nothing useful is found
    };

    struct Entry {
        Key key;
        T const* value = nullptr;
    };

    Entry entries_[room];
};

} // namespace velmara
