#pragma once

#include "orbis/factory/detail/arrays/ArgumentHolder.hpp"

#include "libhv/libhv.hpp"

namespace orbis::factory::detail {

/// The holder of a NUL-terminated string that the host allocated; `T` is a pointer to its characters.
template <class T>
class HostTextHolder : public ArgumentHolder {
public:
    /// Takes ownership of a string that is freed with `hvFreeEx` (null allowed).
    explicit HostTextHolder(T text) : text_(text) {}

    ~HostTextHolder() override
    {
        if (text_)
            hvFreeEx(text_);
    }

    T& value() { return text_; }

private:
    T text_;
};

} // namespace orbis::factory::detail
