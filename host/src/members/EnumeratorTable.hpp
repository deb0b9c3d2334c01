#pragma once

#include "arrays/Array.hpp"
#include "names/NameMap.hpp"

#include "velmara/ArrayPtr.hpp"

#include "host_extensions/host_extensions.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmara {

class ObjectClass;

/// One enumerator and its one object, in a 1-by-1 array of its own.
struct Enumerator : orbis::host_extensions::Enumerator {
    ArrayPtr object;

    Object* host() const { return Array::of(object.get())->objects().front(); }
};

/// The enumerators of an enumeration class: one for each value, under one or more names.
class EnumeratorTable {
public:
    struct Entry {
        Name name;
        std::int64_t value;
    };

    bool empty() const { return entries_.empty(); }

    /// All names with their values, in the order in which they were added.
    std::vector<Entry> const& entries() const { return entries_; }

    /// A further name for a value that is there already means the same enumerator. Throws
    /// "VELMARA:enumeration:..." for no name, and for one that is taken; `className` is for its text.
    void add(Name className, std::string_view name, std::int64_t value);

    /// Creates the objects of all enumerators.
    void createObjects(ObjectClass& cls);

    /// Null when there is none.
    Enumerator const* find(std::string_view name) const
    {
        std::size_t const* const found = byName_.findText(name);
        return found ? &enumerators_[*found] : nullptr;
    }

    Enumerator const* find(std::int64_t value) const;

    /// `number` counts the values in the order in which they were added, from 0.
    Enumerator const& at(std::size_t number) const { return enumerators_[number]; }

    /// The length of the longest name.
    std::size_t longestName() const { return longestName_; }

    /// "Red, Green, Blue"
    std::string names() const;

private:
    /// Where the value is, or would be, in `byValue_`.
    std::vector<std::size_t>::const_iterator positionOf(std::int64_t value) const;

    std::vector<Entry> entries_;
    std::vector<Enumerator> enumerators_;
    NameMap<std::size_t> byName_;
    std::vector<std::size_t> byValue_; ///< in ascending order of the values
    std::size_t longestName_ = 0;
};

} // namespace velmara
