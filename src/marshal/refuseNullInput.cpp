#include "orbis/factory/detail/refuseNullInput.hpp"

#include "marshal/NullInput.hpp"

namespace orbis::factory::detail {

void refuseNullInput(hvArray_tag const* input, char const* className)
{
    throw NullInput("The value", input, className);
}

} // namespace orbis::factory::detail
