#include "orbis/factory/impl/Setter.hpp"

namespace orbis::factory::impl {

Setter::~Setter() = default;

} // namespace orbis::factory::impl
