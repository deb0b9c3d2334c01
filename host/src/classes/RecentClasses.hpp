#pragma once

#include "classes/Class.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace velmara {

/// The classes found last by the texts at some addresses. Mostly a class is asked for with one text again and again:
/// then one comparison takes the place of a hash. Any class may be forgotten at any time.
class RecentClasses {
public:
    /// Null unless the class found last by a text at this address has just this name. It may have been closed since.
    [[gnu::always_inline]] Class* find(std::string_view fullName) const
    {
        Class* const recent = classes_[placeOf(fullName)];
        return recent && recent->name()->view() == fullName ? recent : nullptr;
    }

    void remember(std::string_view fullName, Class& cls) { classes_[placeOf(fullName)] = &cls; }

    void clear() { *this = {}; }

private:
    static constexpr std::size_t room = 64;

    static std::size_t placeOf(std::string_view text)
    {
        return reinterpret_cast<std::uintptr_t>(text.data()) / 8 % room;
    }

    Class* classes_[room] = {};
};

} // namespace velmara
