#pragma once

#include "lua/LuaApi.hpp"

#include <string>

namespace velmara::console {

/// What a script may say of a picture.
struct PictureOptions {
    enum class Format { Dot, Svg };

    static constexpr lua_Integer unset = -1;

    lua_Integer depth = unset;  ///< how many properties away from the given objects there are boxes
    lua_Integer limit = 1000;   ///< how many objects have a box each
    lua_Integer properties = 6; ///< how many of them a box has
    bool showsSuperclasses = false;
    bool showsHandles = false;
    Format format = Format::Dot;
    std::string file; ///< to be written; empty for none
};

/// Whether the value at `index` is a table of options, rather than of objects.
bool isOptions(lua_State* L, int index);

/// The options at `index`, a table, or nil for none. Throws an `Error` for what is no option.
PictureOptions optionsAt(lua_State* L, int index);

} // namespace velmara::console
