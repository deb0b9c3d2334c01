#include "orbis/factory/detail/initStringDataTypes.hpp"

#include "orbis/factory/basic/HvmScoped.hpp"

#include "marshal/StringDataTypeRegistration.hpp"

namespace orbis::factory::detail {

void initStringDataTypes()
{
    basic::HvmScoped<StringDataTypeRegistration>::get();
}

} // namespace orbis::factory::detail
