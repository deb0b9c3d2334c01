#pragma once

#include "lua/LuaApi.hpp"
#include "show/NativeReading.hpp"
#include "values/HostCall.hpp"

#include "velmara/Listing.hpp"

#include "libhv/hvArray.hpp"

#include <optional>
#include <string>

namespace velmara::console {

/// One value in a part of a line: numbers and short texts themselves, an enumerator's name, the text that a class's
/// author gave; of others what they are. Reads no properties.
std::string summary(lua_State* L, hvArray_tag* array, ValueShape shape = ValueShape::Plain);

/// That of what was read; "?" of what could not be read.
std::string summary(lua_State* L, NativeReading const& reading);

/// The same for the value of the script at `index`. Calls no metamethods.
std::string summary(lua_State* L, int index);

/// The object at a zero-based index as an array of its own class, for `call`; null for a null element.
hvArray_tag* objectAt(HostCall& call, hvArray_tag const* array, std::size_t index);

/// The published class of an object, an array of one; nothing when it is not published any more.
std::optional<ClassRecord> publishedClass(lua_State* L, hvArray_tag const* object);

/// The text that the author of the class gives the object, in one line; empty for none.
std::string authorsText(lua_State* L, hvArray_tag* object, ClassRecord const& cls);

} // namespace velmara::console
