#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace velmara::console {

/// A table of texts in columns: those that hold only numbers are aligned right.
class AlignedTable {
public:
    using Row = std::vector<std::string>;

    explicit AlignedTable(Row headings) : rows_{std::move(headings)} {}

    /// Adds a row of as many texts.
    void add(Row row) { rows_.push_back(std::move(row)); }

    /// The headings and all rows, with two blanks between columns. The last columns are omitted, and each line ends
    /// with "...", where they do not fit the width.
    std::vector<std::string> lines(std::size_t width = std::numeric_limits<std::size_t>::max()) const;

private:
    bool areNumbers(std::size_t column) const;

    std::vector<Row> rows_;
};

} // namespace velmara::console
