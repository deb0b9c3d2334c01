#pragma once

#include "pictures/LiveObjects.hpp"
#include "pictures/ObjectWalk.hpp"
#include "pictures/Picture.hpp"

#include <span>

namespace velmara::console {

/// A box for each object.
Picture objectPicture(std::span<FoundObject const> objects, ClassRecords& classes, PictureOptions const& options,
                      HandlesToObjects const& handles);

/// A box for each class. Its arrows are properties whose type is such a class, or a superclass of one.
Picture classPicture(std::span<ObjectCounts const> counts, ClassRecords& classes, PictureOptions const& options);

} // namespace velmara::console
