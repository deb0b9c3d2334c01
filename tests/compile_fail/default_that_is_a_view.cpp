// expect EITHER: A default value is kept for later calls and would refer to memory that is not its own
// each: text; utf16; view; Array(array); ConstArray(array); array
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/withDefaults.hpp"

using Array = orbis::factory::hvArrayProxy;
using ConstArray = orbis::factory::hvConstArrayProxy;

char const* text;
char16_t* utf16;
std::string_view view;
hvArray* array;

auto const defaults = orbis::factory::withDefaults(EITHER("literal", EACH));
