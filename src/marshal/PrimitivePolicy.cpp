#include "orbis/factory/marshaling/PrimitivePolicy.hpp"

namespace orbis::factory {

Marshaler<PrimitivePolicy>& Marshaler<PrimitivePolicy>::operator=(Marshaler const&) = default;

Marshaler<PrimitivePolicy>& Marshaler<PrimitivePolicy>::operator=(Marshaler&&) = default;

} // namespace orbis::factory
