// The process's allocator, in front of the system's or the sanitizer's: fails where that is to be seen. What is given
// back goes to them directly.
#include "faults.hpp"

#include <cerrno>
#include <cstdlib>
#include <new>

#define EXPORT extern "C" __attribute__((visibility("default")))
#define SYSTEM(function) (__interceptor_##function ? __interceptor_##function : __libc_##function)
#define SYSTEM_ALLOCATOR(function, ...)                                                                                \
    extern "C" void* __libc_##function(__VA_ARGS__);                                                                   \
    extern "C" __attribute__((weak)) void* __interceptor_##function(__VA_ARGS__);
SYSTEM_ALLOCATOR(malloc, std::size_t)
SYSTEM_ALLOCATOR(calloc, std::size_t, std::size_t)
SYSTEM_ALLOCATOR(realloc, void*, std::size_t)
SYSTEM_ALLOCATOR(memalign, std::size_t, std::size_t)

namespace {

bool fails()
{
    using faults::Shortage;
    if (!faults::isArmed)
        return false;
    if (faults::shortage <= Shortage::Once)
        faults::shortage = Shortage(faults::reach("allocation", 3, faults::allocationInterval));
    if (faults::shortage != Shortage::None)
        errno = ENOMEM;
    return faults::shortage != Shortage::None;
}

} // namespace

EXPORT void* malloc(std::size_t size) noexcept
{
    return fails() ? nullptr : SYSTEM(malloc)(size);
}

EXPORT void* calloc(std::size_t count, std::size_t size) noexcept
{
    return fails() ? nullptr : SYSTEM(calloc)(count, size);
}

EXPORT void* realloc(void* memory, std::size_t size) noexcept
{
    return fails() ? nullptr : SYSTEM(realloc)(memory, size);
}

void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
    return malloc(size);
}

void* operator new(std::size_t size)
{
    if (void* const memory = malloc(size))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new(std::size_t size, std::align_val_t alignment, std::nothrow_t const&) noexcept
{
    return fails() ? nullptr : SYSTEM(memalign)(static_cast<std::size_t>(alignment), size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    if (void* const memory = operator new(size, alignment, std::nothrow))
        return memory;
    throw std::bad_alloc();
}
