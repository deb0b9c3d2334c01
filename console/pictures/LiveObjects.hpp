#pragma once

#include "handles/HostContext.hpp"

#include "orbis/COSInterfacePtr.hpp"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace velmara::console {

/// Handles that native code has.
struct HandleCounts {
    int strong = 0;
    int weak = 0;
};

/// Objects of one class.
struct ObjectCounts {
    std::string className;
    std::string owner;
    std::size_t objects = 0;
    std::size_t invalid = 0;
    HandleCounts handles;
};

/// The live objects by their classes, without enumerators. Some may be invalid.
std::vector<ObjectCounts> countLiveObjects(Hvm& hvm);

/// These objects, held, in the same order. One that is being constructed or destroyed is omitted.
std::vector<orbis::COSInterfacePtr> liveObjects(Hvm& hvm);

/// Other ones, which were destroyed, but the script still has values of them.
std::vector<orbis::COSInterfacePtr> destroyedObjects(HostContext& host);

/// By the objects that have any.
using HandlesToObjects = std::unordered_map<orbis::COSInterface const*, HandleCounts>;

HandlesToObjects handlesToObjects(Hvm& hvm);

} // namespace velmara::console
