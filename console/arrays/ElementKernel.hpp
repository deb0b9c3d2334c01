#pragma once

#include "arrays/ArrayOperands.hpp"
#include "arrays/ElementBlocks.hpp"

namespace velmara::console {

/// The plain loop of an operation: stores `count` results for as many elements of both sides, up to the first that has
/// none. Returns how many.
template <class A, class B, class R>
using ElementKernel = std::size_t (*)(A const* a, B const* b, R* out, std::size_t count);

/// Computes the elements of the result, of class `R`, from the operands' as `A` and `B`, up to the first that has none.
/// Returns how many.
template <class A, class B, class R>
std::size_t computeElements(ArrayOperands const& operands, hvArray_tag* result, ElementKernel<A, B, R> kernel)
{
    ElementBlocks<A> first(*operands.first, operands.shape);
    ElementBlocks<B> second(*operands.second, operands.shape);
    auto* const out = static_cast<R*>(orbis::host_extensions::getWritableData(result));
    std::size_t const total = operands.shape.count();
    for (std::size_t start = 0; start < total; start += ElementBlocks<A>::maxSize) {
        std::size_t const count = std::min(ElementBlocks<A>::maxSize, total - start);
        std::size_t const computed = kernel(first.at(start, count), second.at(start, count), out + start, count);
        if (computed != count)
            return start + computed;
    }
    return total;
}

} // namespace velmara::console
