#pragma once

#include "velmara/export.hpp"

#include <cstdint>

namespace velmara {

/// How many of the host's things are alive in the process, over all virtual machines and threads.
struct LiveCounts {
    std::int64_t objects = 0;     ///< host objects whose storage is held, ended ones included
    std::int64_t arrays = 0;      ///< arrays, cells included
    std::int64_t classInfos = 0;  ///< class infos
    std::int64_t descriptors = 0; ///< method, property and package infos, signatures, data types, conversions
    std::int64_t heldNames = 0;   ///< `COSNameID`s; a name that is only interned does not count

    bool operator==(LiveCounts const&) const = default;
};

/// Exact while no other thread is inside the host.
VELMARA_API LiveCounts liveCounts();

} // namespace velmara
