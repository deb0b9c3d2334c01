#include "values/ArrayMemory.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <cstdlib>

namespace velmara {

namespace {

#if defined(_WIN32) || defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::uint32_t mostKept = 0;
#else
constexpr std::uint32_t mostKept = 256;
#endif

constinit thread_local bool hasBegun = false;

} // namespace

constinit thread_local ArrayMemory::Kept ArrayMemory::kept_{nullptr, 0};

void* ArrayMemory::allocate()
{
    if (void* const memory = std::malloc(size))
        return memory;
    throw foundation::core::except::bad_alloc();
}

void ArrayMemory::keepOrFree(Piece* piece) noexcept
{
    if (mostKept == 0 || hasBegun) {
        std::free(piece);
        return;
    }
    // From the thread's end on, what its late destructors free is not kept any more.
    struct AtThreadEnd {
        AtThreadEnd() noexcept { hasBegun = true; }
        ~AtThreadEnd() { freeKept(); }
    };
    thread_local AtThreadEnd const atThreadEnd;
    kept_.room = mostKept;
    giveBack(piece);
}

void ArrayMemory::freeKept() noexcept
{
    while (Piece* const piece = kept_.first) {
        kept_.first = piece->next;
        std::free(piece);
    }
    kept_.room = 0;
}

} // namespace velmara
