#include "orbis/factory/descriptors/Setter.hpp"

namespace orbis::factory::impl {

Setter::~Setter() = default;

} // namespace orbis::factory::impl
