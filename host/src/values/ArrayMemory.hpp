#pragma once

#include <cstddef>
#include <cstdint>

namespace velmara {

/// The memory of arrays without their payloads. Calls make and free arrays all the time, so each thread keeps the
/// few pieces that it freed last. Sanitized builds keep none, so that a late use is found; nor does Windows, where
/// reaching what belongs to a thread costs as much as it saves.
class ArrayMemory {
public:
    static constexpr std::size_t size = 88;

    /// Throws `bad_alloc`.
    static void* take();

    /// Null when the thread keeps no piece.
    static void* takeKept();
    static void giveBack(void* memory) noexcept;

private:
    struct Piece {
        Piece* next;
    };

    struct Kept {
        Piece* first;
        std::uint32_t room; ///< how many more are kept; 0 until the thread frees its first
    };

#if defined(_WIN32)
    static constinit thread_local Kept kept_;
#else
    [[gnu::tls_model("initial-exec")]] static constinit thread_local Kept kept_;
#endif

    static void* allocate();
    static void keepOrFree(Piece* piece) noexcept;
    static void freeKept() noexcept;
};

inline void* ArrayMemory::takeKept()
{
    Piece* const piece = kept_.first;
    if (piece) [[likely]] {
        kept_.first = piece->next;
        ++kept_.room;
    }
    return piece;
}

inline void* ArrayMemory::take()
{
    void* const kept = takeKept();
    return kept ? kept : allocate();
}

inline void ArrayMemory::giveBack(void* memory) noexcept
{
    auto* const piece = static_cast<Piece*>(memory);
    if (kept_.room == 0) [[unlikely]]
        return keepOrFree(piece);
    piece->next = kept_.first;
    kept_.first = piece;
    --kept_.room;
}

} // namespace velmara
