#pragma once

#include "velmara/Snapshot.hpp"

#include <tuple>

namespace velmara {

/// The order of a snapshot's rows.
inline bool isListedBefore(SnapshotRow const& a, SnapshotRow const& b)
{
    return std::tie(b.bytes, b.objects, b.arrays, a.className, a.origin) <
           std::tie(a.bytes, a.objects, a.arrays, b.className, b.origin);
}

} // namespace velmara
