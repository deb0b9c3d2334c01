#pragma once

namespace orbis::factory {

/// Adds the library's texts to the catalog of the current virtual machine, once in each; without one it does nothing. A
/// host that loads the library as a module has added them before, a program that links the library has not.
void addMessages();

} // namespace orbis::factory
