#pragma once

namespace orbis::factory {

/// Adds the library's texts to the catalog of the current virtual machine, once per machine; does nothing if none is
/// current. Needed where a program links the library: a host that loads it as a module has added them.
void addMessages();

} // namespace orbis::factory
