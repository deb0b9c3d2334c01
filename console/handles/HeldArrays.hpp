#pragma once

#include "velmara/ArrayPtr.hpp"

#include <cstddef>
#include <vector>

namespace velmara::console {

/// Owns the host arrays that values of the script hold. Lua frees a value without finalizing it when no stack or memory
/// is left to call its finalizer: what such a value held is still known here, and released with the session.
class HeldArrays {
public:
    HeldArrays() = default;
    HeldArrays(HeldArrays const&) = delete;
    HeldArrays& operator=(HeldArrays const&) = delete;
    ~HeldArrays() { clear(); }

    /// What a value of the script stores: a view of its array, and the slot of the owner.
    struct Holder {
        hvArray_tag* array = nullptr; ///< null once it was released
        std::size_t slot = 0;
    };

    /// Takes ownership of `array` for an empty holder, which stays empty when memory runs out.
    void hold(Holder& holder, ArrayPtr array)
    {
        if (free_ == slots_.size())
            slots_.push_back({nullptr, slots_.size() + 1});
        holder = {array.get(), free_};
        free_ = slots_[holder.slot].nextFree;
        slots_[holder.slot].array = array.release();
    }

    /// Empties the holder and returns its array, null when it was empty.
    ArrayPtr release(Holder& holder) noexcept
    {
        ArrayPtr array(holder.array);
        if (array) {
            slots_[holder.slot] = {nullptr, free_};
            free_ = holder.slot;
        }
        holder.array = nullptr;
        return array;
    }

    /// Calls `visit` with each array, which must hold and release none meanwhile.
    template <class Visit>
    void forEach(Visit const& visit) const
    {
        for (Slot const& slot : slots_)
            if (slot.array)
                visit(slot.array);
    }

    /// Releases what is still held. No value of the script may be alive.
    void clear() noexcept
    {
        for (; !slots_.empty(); slots_.pop_back())
            ArrayPtr const last(slots_.back().array);
        free_ = 0;
    }

private:
    struct Slot {
        hvArray_tag* array;
        std::size_t nextFree; ///< of a free slot
    };

    std::vector<Slot> slots_;
    std::size_t free_ = 0; ///< the first free slot; the number of slots when none is
};

} // namespace velmara::console
