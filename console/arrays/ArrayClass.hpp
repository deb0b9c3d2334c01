#pragma once

#include "lua/LuaApi.hpp"

#include "libhv/hvArray.hpp"

#include <string>

namespace velmara::console {

/// A class of host arrays as a script names it: "double", "char", "cell", ..., or a published class.
struct ArrayClass {
    hvClassID classID = hvUNKNOWN_CLASS;
    std::string name;
};

ArrayClass arrayClassOf(hvArray_tag const& array);

/// The class at `index`, given by its name or as a published class itself. Throws an `Error` that lists the names for
/// anything else.
ArrayClass checkArrayClass(lua_State* L, int index);

} // namespace velmara::console
