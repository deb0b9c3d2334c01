#pragma once

namespace orbis::factory {

/// The module's table of gateway functions: a one-word record that points to a null-terminated list. The interface
/// requires it; the module publishes packages instead, and both entries only report an internal error.
void const* functionTable();

} // namespace orbis::factory
