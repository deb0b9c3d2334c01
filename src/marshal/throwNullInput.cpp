#include "orbis/factory/detail/arrays/throwNullInput.hpp"

#include "marshal/NullInput.hpp"

namespace orbis::factory::detail {

void throwNullInput(hvArray_tag const* input, char const* className)
{
    throw NullInput("The value", input, className);
}

} // namespace orbis::factory::detail
