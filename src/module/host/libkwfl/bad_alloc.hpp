#pragma once

#include "libkwfl/IException.hpp"

#include <new>

namespace foundation::core::except {

namespace detail {
class ORBIS_HOST_API bad_alloc_impl : public IException, public std::bad_alloc {
public:
    bad_alloc_impl();
    bad_alloc_impl(bad_alloc_impl const&);
    ~bad_alloc_impl() override;

    char const* what() const noexcept override;
};
} // namespace detail

/// Out of memory: `throw bad_alloc()`.
using bad_alloc = detail::bad_alloc_impl;

} // namespace foundation::core::except
