#pragma once

#include "lua/LuaApi.hpp"
#include "pictures/LiveObjects.hpp"
#include "pictures/Picture.hpp"
#include "pictures/PictureOptions.hpp"

#include "orbis/COSInterfacePtr.hpp"

#include <vector>

namespace velmara::console {

/// The objects, and those that they refer to. `handles` are those to be drawn.
Picture pictureOf(lua_State* L, std::vector<orbis::COSInterfacePtr> objects, PictureOptions const& options,
                  HandlesToObjects const& handles);

/// All live objects of the virtual machine in use, and those that the script still has after they were destroyed.
Picture pictureOfAll(lua_State* L, PictureOptions const& options, HandlesToObjects const& handles);

} // namespace velmara::console
