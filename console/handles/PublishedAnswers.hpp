#pragma once

#include "lua/LuaApi.hpp"

namespace velmara::console {

/// What the console has asked about published names, and what it has made of the answers. All of it is forgotten once
/// what is published has changed.

/// Tables of tables in the registry: the members of classes by class, the contents of names by proxy, the metatables
/// of objects by class.
enum class Answers { Members, Contents, Metatables };

/// Pushes one of them.
void pushAnswers(lua_State* L, Answers answers);

/// Empties them, and the tables in the first two, which values of the script refer to. Called when what is published
/// has changed.
void forgetAnswers(lua_State* L);

} // namespace velmara::console
