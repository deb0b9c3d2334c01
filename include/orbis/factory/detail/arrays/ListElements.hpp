#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <optional>

namespace orbis::factory::detail {

/// The elements of a list that a script passes, each as an array: the cells of a cell array, and the elements of
/// numeric, logical, string and object arrays, in column order. If the elements are lists themselves, those of a matrix
/// are its rows. None for null and for "[]".
class ORBIS_FACTORY_API ListElements {
public:
    /// `list` outlives this. Throws the `not_convertible` error for an array of another class.
    ListElements(hvArray_tag const* list, bool areLists);

    /// For a list that must have `count` elements, which may be the rows of a matrix.
    ListElements(hvArray_tag const* list, std::size_t count);

    std::size_t size() const { return size_; }

    /// Returns an element, null for an empty cell. It is valid until the next call.
    hvArray_tag const* at(std::size_t index);

private:
    hvArray_tag* copyElement(std::size_t index) const;
    hvArray_tag* copyRow(std::size_t row) const;

    hvArray_tag const* list_;
    bool areRows_ = false;
    std::size_t size_ = 0;
    std::optional<NewArray> element_;
};

/// Calls `function`, and names the element in its errors.
template <class F>
decltype(auto) atElement(std::size_t index, F&& function)
{
    try {
        return static_cast<F&&>(function)();
    } catch (...) {
        rethrowAtElement(index);
    }
}

} // namespace orbis::factory::detail
