#pragma once

#include "velmara/export.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmara {

/// Where something is created, such as a line of a script.
struct Origin {
    std::string_view source; ///< such as the name of a file; valid until the next one is asked for
    int line = 0;            ///< 0 where there is none
};

/// Tells the origin of what is just being created; without a source where it is not known. It uses nothing of the
/// virtual machine; what it throws is lost, and the origin not known.
using OriginSource = std::function<Origin()>;

/// What is alive of one class and from one origin.
struct SnapshotRow {
    std::string className;     ///< of arrays as `className` tells it
    std::string origin;        ///< "SOURCE:LINE"; empty where none was recorded
    std::int64_t objects = 0;  ///< host objects that have not ended, enumerators excluded
    std::int64_t bindings = 0; ///< native objects that these represent, for their class or a superclass
    std::int64_t arrays = 0;   ///< arrays that were created while origins were recorded
    std::int64_t bytes = 0;    ///< of the host's own memory for these: see `Hvm::snapshot`

    bool operator==(SnapshotRow const&) const = default;
};

/// What is alive in a virtual machine, as numbers: it holds nothing of it.
struct Snapshot {
    std::vector<SnapshotRow> rows; ///< each class and origin once, most bytes first

    /// The growth since `earlier`; what has become less is negative, and comes last. What is the same is not in it.
    VELMARA_API Snapshot operator-(Snapshot const& earlier) const;
};

} // namespace velmara
