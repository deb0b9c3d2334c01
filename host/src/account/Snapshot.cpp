#include "velmara/Snapshot.hpp"

#include "account/snapshotOrder.hpp"

#include <algorithm>
#include <map>
#include <utility>

namespace velmara {

Snapshot Snapshot::operator-(Snapshot const& earlier) const
{
    std::map<std::pair<std::string_view, std::string_view>, SnapshotRow> growth;
    auto const add = [&](SnapshotRow const& row, int sign) {
        SnapshotRow& sum = growth[{row.className, row.origin}];
        sum.objects += sign * row.objects;
        sum.bindings += sign * row.bindings;
        sum.arrays += sign * row.arrays;
        sum.bytes += sign * row.bytes;
    };
    for (SnapshotRow const& row : rows)
        add(row, 1);
    for (SnapshotRow const& row : earlier.rows)
        add(row, -1);

    Snapshot difference;
    for (auto& [key, sum] : growth)
        if (sum != SnapshotRow()) {
            SnapshotRow& row = difference.rows.emplace_back(sum);
            row.className = key.first;
            row.origin = key.second;
        }
    std::ranges::sort(difference.rows, isListedBefore);
    return difference;
}

} // namespace velmara
