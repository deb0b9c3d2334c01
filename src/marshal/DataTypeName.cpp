#include "orbis/factory/detail/arrays/DataTypeName.hpp"

namespace orbis::factory::detail {

std::string dataTypeTextWith(char const* dataType, char const* suffix)
{
    return std::string(dataType).append(suffix);
}

} // namespace orbis::factory::detail
