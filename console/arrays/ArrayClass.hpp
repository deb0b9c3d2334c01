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

/// The class that the name, or the published class itself, at `index` stands for. Throws an `Error` that lists the
/// names.
ArrayClass checkArrayClass(lua_State* L, int index);

} // namespace velmara::console
