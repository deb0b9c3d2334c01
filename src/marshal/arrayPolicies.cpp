#include "orbis/factory/types/HvArrayPolicy.hpp"
#include "orbis/factory/types/HvArrayReferenceCountedPolicy.hpp"

namespace orbis::factory {

using Plain = Marshaler<HvArrayPolicy>;
using Counted = Marshaler<HvArrayReferenceCountedPolicy>;

Plain& Plain::operator=(Marshaler const&) = default;

Plain& Plain::operator=(Marshaler&&) = default;

Counted& Counted::operator=(Marshaler const&) = default;

Counted& Counted::operator=(Marshaler&&) = default;

} // namespace orbis::factory
