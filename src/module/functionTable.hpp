#pragma once

namespace orbis::factory {

/// The module's table of gateway functions: a one-word record that points to a null-ended list. The module's offer
/// is in packages; the two entries only say so.
void const* functionTable();

} // namespace orbis::factory
