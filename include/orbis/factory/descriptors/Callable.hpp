#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace orbis::factory::impl {

/// A type-erased pointer to a function, to data or to a member. Null when default-constructed.
class Callable {
public:
    Callable() = default;

    template <class F>
        requires std::is_pointer_v<F> || std::is_member_pointer_v<F>
    Callable(F function)
    {
        static_assert(sizeof(F) <= sizeof(bytes_), "A pointer takes two words at most.");
        std::memcpy(bytes_, &function, sizeof(F));
    }

    /// Returns the pointer. `F` must be the type it was constructed from, or a class whose only member is such a
    /// pointer.
    template <class F>
    F as() const
    {
        F function;
        std::memcpy(&function, bytes_, sizeof(F));
        return function;
    }

private:
    alignas(void*) std::byte bytes_[2 * sizeof(void*)] = {};
};

} // namespace orbis::factory::impl
