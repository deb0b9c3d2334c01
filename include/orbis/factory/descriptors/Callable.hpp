#pragma once

#include <cstring>
#include <type_traits>

namespace orbis::factory::impl {

/// A type-erased pointer to a function, to data or to a member. Null when default-constructed.
class Callable {
public:
    Callable() = default;

    /// Refers to what `function` points to.
    template <class F>
        requires std::is_pointer_v<F> || std::is_member_pointer_v<F>
    Callable(F function)
    {
        static_assert(sizeof(F) <= sizeof(words_), "A pointer takes two words at most.");
        std::memcpy(words_, &function, sizeof(F));
    }

    /// Returns the pointer. `F` must be the type it was constructed from, or a class whose only member is such a
    /// pointer.
    template <class F>
    F as() const
    {
        F function;
        std::memcpy(&function, words_, sizeof(F));
        return function;
    }

private:
    void* words_[2] = {};
};

} // namespace orbis::factory::impl
