#include "orbis/factory/descriptors/Getter.hpp"

namespace orbis::factory::impl {

Getter::~Getter() = default;

} // namespace orbis::factory::impl
