#pragma once

#include "velmara/ArrayPtr.hpp"

#include <span>
#include <vector>

namespace velmara::console {

/// The host arrays of the calls in progress, innermost last. They are owned here and not by the frames of the calls:
/// `os.exit` in the midst of a call unwinds no frame, and they must be released all the same.
class ArrayStack {
public:
    ArrayStack() = default;
    ArrayStack(ArrayStack const&) = delete;
    ArrayStack& operator=(ArrayStack const&) = delete;
    ~ArrayStack() { shrink(0); }

    std::size_t size() const { return arrays_.size(); }
    std::span<hvArray_tag* const> first(std::size_t count) const { return std::span(arrays_).first(count); }

    /// Releases all arrays from `size` on, the last one first.
    void shrink(std::size_t size) noexcept
    {
        while (arrays_.size() > size) {
            ArrayPtr last(arrays_.back());
            arrays_.pop_back();
        }
    }

    /// The arrays of one call: released at its end.
    class Frame {
    public:
        explicit Frame(ArrayStack& stack) : stack_(stack), start_(stack.arrays_.size()) {}
        Frame(Frame const&) = delete;
        Frame& operator=(Frame const&) = delete;
        ~Frame() { stack_.shrink(start_); }

        /// Takes ownership; the array stays valid until the frame ends.
        hvArray_tag* push(ArrayPtr array)
        {
            stack_.arrays_.push_back(array.get());
            return array.release();
        }

        std::span<hvArray_tag* const> arrays() const { return std::span(stack_.arrays_).subspan(start_); }

    private:
        ArrayStack& stack_;
        std::size_t start_;
    };

private:
    std::vector<hvArray_tag*> arrays_;
};

} // namespace velmara::console
