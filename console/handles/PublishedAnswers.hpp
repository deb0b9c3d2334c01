#pragma once

#include "lua/RegistryTable.hpp"

namespace velmara::console {

/// What the console has asked about published names, and what it has made of the answers. All of it is forgotten once
/// what is published has changed.
struct PublishedAnswers {
    RegistryTable members;    ///< of classes: tables by class
    RegistryTable contents;   ///< of names: tables by proxy
    RegistryTable metatables; ///< of objects, by the shared name of their class

    /// Empties the tables, and those in the first two, which values of the script refer to.
    void forget(lua_State* L);
};

} // namespace velmara::console
