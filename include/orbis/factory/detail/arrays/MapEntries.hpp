#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/ListElements.hpp"

#include "libhv/hvArray.hpp"

#include <cstddef>
#include <optional>

namespace orbis::factory::detail {

/// The entries of a map that a script passes: the rows of an array of two columns, keys and values, or the elements of
/// a list of lists of two. None for null and for "[]".
class ORBIS_FACTORY_API MapEntries {
public:
    /// `map` outlives this. Throws the `not_convertible` error for an array of another class.
    explicit MapEntries(hvArray_tag const* map);

    std::size_t size() const { return size_; }

    /// Makes an entry the current one. Throws the `not_convertible` error unless it has a key and a value.
    void select(std::size_t index);

    /// Those of the current entry, null for an empty cell, valid until the next call of the same function.
    hvArray_tag const* key() { return keys_ ? keys_->at(keyAt_) : nullptr; }
    hvArray_tag const* value() { return values_ ? values_->at(valueAt_) : nullptr; }

private:
    std::size_t size_ = 0;
    std::optional<ListElements> entries_; ///< unless there are columns
    std::optional<ListElements> keys_;    ///< of all entries, or of the current one
    std::optional<ListElements> values_;  ///< likewise
    std::size_t keyAt_ = 0;
    std::size_t valueAt_ = 1;
};

} // namespace orbis::factory::detail
