#include "orbis/factory/impl/Getter.hpp"

namespace orbis::factory::impl {

Getter::~Getter() = default;

} // namespace orbis::factory::impl
