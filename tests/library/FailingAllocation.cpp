#include "library/FailingAllocation.hpp"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();
thread_local std::size_t left = never;

} // namespace

FailingAllocation::FailingAllocation(std::size_t n)
{
    left = n;
}

FailingAllocation::~FailingAllocation()
{
    left = never;
}

bool FailingAllocation::hasFailed()
{
    return left == never;
}

// All forms but the aligned ones, so that no sanitizer sees what one of them made given back to another's maker. On
// Linux they serve the shared libraries, too; on Windows only the test program.
void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
    bool const fails = left == 0;
    if (left != never)
        left = fails ? never : left - 1;
    return fails ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size)
{
    void* const storage = operator new(size, std::nothrow);
    if (!storage)
        throw std::bad_alloc();
    return storage;
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new[](std::size_t size, std::nothrow_t const&) noexcept
{
    return operator new(size, std::nothrow);
}

void operator delete(void* storage) noexcept
{
    std::free(storage);
}

void operator delete(void* storage, std::size_t) noexcept
{
    std::free(storage);
}

void operator delete(void* storage, std::nothrow_t const&) noexcept
{
    std::free(storage);
}

void operator delete[](void* storage) noexcept
{
    std::free(storage);
}

void operator delete[](void* storage, std::size_t) noexcept
{
    std::free(storage);
}

void operator delete[](void* storage, std::nothrow_t const&) noexcept
{
    std::free(storage);
}
