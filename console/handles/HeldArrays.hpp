#pragma once

#include "velmara/ArrayPtr.hpp"

#include <cstddef>
#include <vector>

namespace velmara::console {

/// The host arrays that values of the script hold. Lua frees a value without finalizing it where its finalizer cannot
/// be called, as no stack or memory is left: what it held is still known here, and given back at the end of the
/// session.
class HeldArrays {
public:
    HeldArrays() = default;
    HeldArrays(HeldArrays const&) = delete;
    HeldArrays& operator=(HeldArrays const&) = delete;
    ~HeldArrays() { clear(); }

    /// What a value of the script keeps of its array: a view, and the place to find the owner at.
    struct Holder {
        hvArray_tag* array = nullptr; ///< null once it was given back
        std::size_t place = 0;
    };

    /// Owns `array` for an empty holder from now on. When memory runs out the holder stays empty.
    void give(Holder& holder, ArrayPtr array)
    {
        if (free_ == places_.size())
            places_.push_back({nullptr, places_.size() + 1});
        holder = {array.get(), free_};
        free_ = places_[holder.place].nextFree;
        places_[holder.place].array = array.release();
    }

    /// Empties the holder; its array, null when it was empty, is the caller's.
    ArrayPtr takeBack(Holder& holder) noexcept
    {
        ArrayPtr array(holder.array);
        if (array) {
            places_[holder.place] = {nullptr, free_};
            free_ = holder.place;
        }
        holder.array = nullptr;
        return array;
    }

    /// Gives back what is still held, once no value of the script lives any more.
    void clear() noexcept
    {
        for (; !places_.empty(); places_.pop_back())
            ArrayPtr const last(places_.back().array);
        free_ = 0;
    }

private:
    struct Place {
        hvArray_tag* array;
        std::size_t nextFree; ///< of a place that is free
    };

    std::vector<Place> places_;
    std::size_t free_ = 0; ///< the first free place; as many as there are when none is
};

} // namespace velmara::console
